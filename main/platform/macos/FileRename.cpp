// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "platform/files/FileCopy.h"

#include <cerrno>
#include <cstdio>
#include <fcntl.h>

namespace selvane::files {
namespace {

/// How file systems answer a flag that they don't know.
bool isUnknownFlag(int error) {
    return error == ENOTSUP || error == EOPNOTSUPP || error == EINVAL || error == ENOSYS;
}

} // namespace

int renameExclusively(int fromFolder, const std::filesystem::path& from, int toFolder,
                      const std::filesystem::path& to) {
    if (::renameatx_np(fromFolder, from.c_str(), toFolder, to.c_str(), RENAME_EXCL) == 0)
        return 0;
    if (!isUnknownFlag(errno))
        return errno;
    struct stat status = {};
    if (::fstatat(toFolder, to.c_str(), &status, AT_SYMLINK_NOFOLLOW) == 0)
        return EEXIST;
    if (errno != ENOENT)
        return errno;
    return ::renameat(fromFolder, from.c_str(), toFolder, to.c_str()) == 0 ? 0 : errno;
}

MountId mountOf(const std::filesystem::path& folder) {
    struct stat status = {};
    return ::stat(folder.c_str(), &status) == 0 ? MountId{status.st_dev, 0} : MountId{};
}

int exchangeNames(const std::filesystem::path& first, const std::filesystem::path& second) {
    if (::renameatx_np(AT_FDCWD, first.c_str(), AT_FDCWD, second.c_str(), RENAME_SWAP) == 0)
        return 0;
    return isUnknownFlag(errno) ? ENOTSUP : errno;
}

} // namespace selvane::files
