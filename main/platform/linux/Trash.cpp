// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "platform/files/Trash.h"

#include <string>

#include "model/LauncherError.h"
#include "platform/linux/DesktopServices.h"
#include "platform/text/ErrorText.h"
#include "platform/text/Text.h"

namespace selvane {

void moveToTrash(const std::filesystem::path& path) {
    std::string message;
    const auto append = [](void* context, const char* bytes, std::size_t count) {
        static_cast<std::string*>(context)->append(bytes, count);
    };
    if (const int error = desktopServices().trash(path.c_str(), append, &message); error != 0)
        throw LauncherError(text::singleLine(path.string()) + ": non può essere spostato nel Cestino (" +
                            describe(std::error_code(error, std::generic_category())) + ")");
}

} // namespace selvane
