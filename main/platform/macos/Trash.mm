// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "platform/files/Trash.h"

#include <optional>
#include <string>
#include <sys/stat.h>

#include "model/LauncherError.h"
#import "platform/macos/FoundationTypes.h"
#include "platform/text/Text.h"

namespace selvane {
namespace {

/// Returns the reason if it fails.
std::optional<std::string> trash(const std::filesystem::path& path) {
    @autoreleasepool {
        struct stat status = {};
        const bool isFolder = ::lstat(path.c_str(), &status) == 0 && S_ISDIR(status.st_mode);
        NSError* error = nil;
        if ([NSFileManager.defaultManager trashItemAtURL:macos::urlOf(path, isFolder)
                                        resultingItemURL:nil
                                                   error:&error])
            return std::nullopt;
        return macos::reasonOf(error);
    }
}

} // namespace

void moveToTrash(const std::filesystem::path& path) {
    if (const auto reason = trash(std::filesystem::absolute(path)))
        throw LauncherError(text::singleLine(path.string()) + ": non può essere spostato nel Cestino (" +
                            *reason + ")");
}

} // namespace selvane
