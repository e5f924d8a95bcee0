// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "artwork/IconRenderer.h"

#include <string>

#include "artwork/AppIcon.h"
#include "artwork/PngFile.h"
#include "model/LauncherError.h"
#include "platform/files/FileManager.h"

namespace selvane::IconRenderer {

void render(const std::filesystem::path& folder) {
    FileManager().createFolders(folder);
    for (const int points : {16, 32, 128, 256, 512}) {
        for (const int scale : {1, 2}) {
            const std::string size = std::to_string(points);
            const std::string name = "icon_" + size + "x" + size + (scale == 1 ? ".png" : "@2x.png");
            if (!writePng(appIcon(points * scale), scale, folder / name))
                throw LauncherError("Rendering icona fallito");
        }
    }
}

} // namespace selvane::IconRenderer
