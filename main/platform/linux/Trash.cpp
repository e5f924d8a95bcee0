// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "platform/files/Trash.h"

#include <cerrno>
#include <string>

#include "model/LauncherError.h"
#include "platform/linux/DesktopServices.h"
#include "platform/services/Received.h"
#include "platform/text/ErrorText.h"
#include "platform/text/Text.h"

namespace selvane {

void moveToTrash(const std::filesystem::path& path) {
    Received<std::string> received;
    const int error = desktopServices().trash(path.c_str(), appendBytes, &received);
    const std::string detail = text::singleLine(received.take());
    if (error == 0)
        return;
    // The system's own words say more, in its own language.
    std::string reason = describe(std::error_code(error, std::generic_category()));
    if (!detail.empty())
        reason = error == EIO ? detail : reason + ": " + detail;
    throw LauncherError(text::singleLine(path.string()) + ": non può essere spostato nel Cestino (" + reason +
                        ")");
}

} // namespace selvane
