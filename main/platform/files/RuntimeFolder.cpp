// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "platform/files/RuntimeFolder.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>

#include "platform/files/Descriptor.h"

namespace selvane {
namespace {

namespace fs = std::filesystem;

/// Whether others are unable to replace the entries of the folder open at `descriptor`.
bool isSafe(int descriptor) {
    struct stat status = {};
    if (::fstat(descriptor, &status) != 0)
        return false;
    const bool isClosedToOthers = (status.st_mode & (S_IWGRP | S_IWOTH)) == 0;
    const bool keepsEntriesApart = (status.st_mode & S_ISVTX) != 0;
    return (status.st_uid == ::geteuid() && isClosedToOthers) || keepsEntriesApart;
}

bool isPrivate(int descriptor) {
    struct stat status = {};
    return ::fstat(descriptor, &status) == 0 && status.st_uid == ::geteuid() &&
           (status.st_mode & (S_IRWXG | S_IRWXO)) == 0;
}

enum class Missing { isMade, isNoFolder };

bool isOurs(const fs::path& place, Missing missing) {
    const files::Descriptor around(::open(place.parent_path().c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (!around || !isSafe(around.get()))
        return false;
    const fs::path name = place.filename();
    if (missing == Missing::isMade && ::mkdirat(around.get(), name.c_str(), S_IRWXU) != 0 && errno != EEXIST)
        return false;
    const files::Descriptor own(
        ::openat(around.get(), name.c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC));
    return own && isPrivate(own.get());
}

} // namespace

std::optional<fs::path> privateFolder(const std::vector<fs::path>& places) {
    const auto found = std::find_if(places.begin(), places.end(),
                                    [](const fs::path& place) { return isOurs(place, Missing::isMade); });
    return found == places.end() ? std::nullopt : std::optional(*found);
}

std::optional<fs::path> runtimeFolder(const Environment& environment) {
    return privateFolder(runtimeFolderPlaces(environment));
}

std::vector<fs::path> runtimeFolders(const Environment& environment) {
    std::vector<fs::path> folders = runtimeFolderPlaces(environment);
    std::erase_if(folders, [](const fs::path& place) { return !isOurs(place, Missing::isNoFolder); });
    return folders;
}

} // namespace selvane
