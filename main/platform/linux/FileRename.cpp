// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>

#include "platform/files/FileCopy.h"

namespace selvane::files {
namespace {

/// How network file systems and older ones answer a flag that they don't know.
bool isWithoutFlags(int error) {
    return error == EINVAL || error == ENOSYS || error == ENOTSUP;
}

} // namespace

int renameExclusively(int fromFolder, const std::filesystem::path& from, int toFolder,
                      const std::filesystem::path& to) {
    if (::renameat2(fromFolder, from.c_str(), toFolder, to.c_str(), RENAME_NOREPLACE) == 0)
        return 0;
    if (!isWithoutFlags(errno))
        return errno;
    struct stat status = {};
    if (::fstatat(toFolder, to.c_str(), &status, AT_SYMLINK_NOFOLLOW) == 0)
        return EEXIST;
    if (errno != ENOENT)
        return errno;
    return ::renameat(fromFolder, from.c_str(), toFolder, to.c_str()) == 0 ? 0 : errno;
}

MountId mountOf(const std::filesystem::path& folder) {
    // One file system can be mounted at several places, and no name moves from one to another.
    struct statx status = {};
    if (::statx(AT_FDCWD, folder.c_str(), AT_STATX_DONT_SYNC, STATX_MNT_ID, &status) != 0)
        return {};
    return {::makedev(status.stx_dev_major, status.stx_dev_minor), status.stx_mnt_id};
}

int exchangeNames(const std::filesystem::path& first, const std::filesystem::path& second) {
    if (::renameat2(AT_FDCWD, first.c_str(), AT_FDCWD, second.c_str(), RENAME_EXCHANGE) == 0)
        return 0;
    return isWithoutFlags(errno) ? ENOTSUP : errno;
}

} // namespace selvane::files
