// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <sys/stat.h>

#include "platform/files/FileCopy.h"

namespace selvane::files {
namespace {

int rename(const std::filesystem::path& from, const std::filesystem::path& to, unsigned int flags) {
    return ::renameat2(AT_FDCWD, from.c_str(), AT_FDCWD, to.c_str(), flags) == 0 ? 0 : errno;
}

/// How network file systems and older ones answer a flag that they don't know.
bool isWithoutFlags(int error) {
    return error == EINVAL || error == ENOSYS || error == ENOTSUP;
}

} // namespace

int renameExclusively(const std::filesystem::path& from, const std::filesystem::path& to) {
    const int error = rename(from, to, RENAME_NOREPLACE);
    if (!isWithoutFlags(error))
        return error;
    struct stat status = {};
    if (::lstat(to.c_str(), &status) == 0)
        return EEXIST;
    return rename(from, to, 0);
}

int exchangeNames(const std::filesystem::path& first, const std::filesystem::path& second) {
    const int error = rename(first, second, RENAME_EXCHANGE);
    return isWithoutFlags(error) ? ENOTSUP : error;
}

} // namespace selvane::files
