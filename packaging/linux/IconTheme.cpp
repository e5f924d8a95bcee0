// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT
//
// icon-theme FOLDER: draws the application's icon in all sizes of the hicolor icon theme, in that theme's
// folders below FOLDER.

#include <cstdio>
#include <exception>
#include <filesystem>
#include <stdexcept>
#include <string>

#include "artwork/AppIcon.h"
#include "artwork/PngFile.h"

namespace {

namespace fs = std::filesystem;

void drawTheme(const fs::path& folder) {
    for (const int points : {16, 22, 24, 32, 36, 48, 64, 72, 96, 128, 192, 256, 512}) {
        for (const int scale : {1, 2}) {
            const std::string size = std::to_string(points) + "x" + std::to_string(points);
            const fs::path place = folder / (scale == 1 ? size : size + "@2") / "apps";
            fs::create_directories(place);
            if (!selvane::writePng(selvane::appIcon(points * scale), scale, place / "selvane.png"))
                throw std::runtime_error("no image of " + size);
        }
    }
}

} // namespace

int main(int argc, char** argv) {
    try {
        drawTheme(argc > 1 ? argv[1] : "");
        return 0;
    } catch (const std::exception& error) {
        std::fprintf(stderr, "icon-theme: %s\n", error.what());
        return 1;
    }
}
