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

/// Returns the reason if it fails; otherwise says where it is now, unless that can't be told.
std::optional<std::string> trash(const std::filesystem::path& path, std::optional<TrashedItem>& trashed) {
    @autoreleasepool {
        struct stat status = {};
        const bool isFolder = ::lstat(path.c_str(), &status) == 0 && S_ISDIR(status.st_mode);
        const files::FileIdentity identity = files::FileIdentity::of(status);
        NSURL* place = nil;
        NSError* error = nil;
        if (![NSFileManager.defaultManager trashItemAtURL:macos::urlOf(path, isFolder)
                                         resultingItemURL:&place
                                                    error:&error])
            return macos::reasonOf(error);
        // The system may keep other programs from looking into the Trash.
        if (place != nil && ::lstat(macos::pathOf(place).c_str(), &status) == 0 &&
            files::FileIdentity::of(status) == identity)
            trashed = TrashedItem{macos::pathOf(place), {}, identity};
        return std::nullopt;
    }
}

} // namespace

std::optional<TrashedItem> moveToTrash(const std::filesystem::path& path) {
    std::optional<TrashedItem> trashed;
    if (const auto reason = trash(std::filesystem::absolute(path), trashed))
        throw LauncherError(text::singleLine(path.string()) + ": non può essere spostato nel Cestino (" +
                            *reason + ")");
    return trashed;
}

} // namespace selvane
