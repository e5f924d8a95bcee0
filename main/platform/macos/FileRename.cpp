// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "platform/files/FileCopy.h"

#include <cerrno>
#include <cstdio>
#include <fcntl.h>

namespace selvane::files {
namespace {

int rename(const std::filesystem::path& from, const std::filesystem::path& to, unsigned int flags) {
    return ::renameatx_np(AT_FDCWD, from.c_str(), AT_FDCWD, to.c_str(), flags) == 0 ? 0 : errno;
}

/// How file systems answer a flag that they don't know.
bool isUnsupported(int error) {
    return error == ENOTSUP || error == EOPNOTSUPP || error == EINVAL || error == ENOSYS;
}

} // namespace

int renameExclusively(const std::filesystem::path& from, const std::filesystem::path& to) {
    const int error = rename(from, to, RENAME_EXCL);
    if (!isUnsupported(error))
        return error;
    struct stat status = {};
    if (::lstat(to.c_str(), &status) == 0)
        return EEXIST;
    return ::rename(from.c_str(), to.c_str()) == 0 ? 0 : errno;
}

int exchangeNames(const std::filesystem::path& first, const std::filesystem::path& second) {
    const int error = rename(first, second, RENAME_SWAP);
    return isUnsupported(error) ? ENOTSUP : error;
}

} // namespace selvane::files
