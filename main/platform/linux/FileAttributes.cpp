// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include <cerrno>
#include <string>
#include <string_view>
#include <sys/stat.h>
#include <sys/xattr.h>

#include "platform/files/FileCopy.h"

namespace selvane::files {
namespace {

constexpr const char* kAccessList = "system.posix_acl_access";
constexpr const char* kDefaultAccessList = "system.posix_acl_default";

bool isCopied(std::string_view name) {
    return name.starts_with("user.") || name == kAccessList || name == kDefaultAccessList;
}

/// Whether the file system or its mount refused the call, as opposed to failing.
bool isUnsupported(int error) {
    return error == ENOTSUP || error == EPERM;
}

/// Returns what a call of the form (buffer, size) reads; nothing, with errno, on failure.
template <typename Read>
std::optional<std::string> readGrowing(Read read) {
    std::string bytes(256, '\0');
    while (true) {
        ssize_t size = read(bytes.data(), bytes.size());
        if (size >= 0) {
            bytes.resize(static_cast<std::size_t>(size));
            return bytes;
        }
        if (errno != ERANGE || (size = read(nullptr, 0)) < 0)
            return std::nullopt;
        bytes.resize(static_cast<std::size_t>(size));
    }
}

/// 0 or the error. An attribute that has disappeared counts as copied.
int copyAttribute(int from, int to, const char* name) {
    const auto value =
        readGrowing([&](char* buffer, std::size_t size) { return ::fgetxattr(from, name, buffer, size); });
    if (!value)
        return errno == ENODATA ? 0 : errno;
    return ::fsetxattr(to, name, value->data(), value->size(), 0) == 0 ? 0 : errno;
}

} // namespace

Descriptor openOriginal(int folder, const char* name) {
    constexpr int kFlags = O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC;
    Descriptor file(::openat(folder, name, kFlags | O_NOATIME));
    if (!file && errno == EPERM) // it is somebody else's
        file = Descriptor(::openat(folder, name, kFlags));
    return file;
}

std::optional<mode_t> copyAttributes(int from, int to, mode_t mode, Privacy privacy) {
    if (privacy == Privacy::ownerOnly)
        mode &= S_IRWXU; // this also limits an access list: its entries get at most the group's bits
    const ssize_t needed = ::flistxattr(from, nullptr, 0);
    if (needed == 0 || (needed < 0 && isUnsupported(errno)))
        return mode;
    const auto names =
        readGrowing([&](char* buffer, std::size_t size) { return ::flistxattr(from, buffer, size); });
    if (!names)
        return std::nullopt;
    for (std::size_t at = 0; at < names->size();) {
        const char* name = names->data() + at;
        at += std::string_view(name).size() + 1;
        const int error = isCopied(name) ? copyAttribute(from, to, name) : 0;
        if (error == 0)
            continue;
        if (!isUnsupported(error)) {
            errno = error;
            return std::nullopt;
        }
        // With an access list, the group bits are the most that its entries get; without one, they are what
        // the group itself gets. That isn't the same.
        if (std::string_view(name) == kAccessList)
            mode &= ~static_cast<mode_t>(S_IRWXG);
    }
    return mode;
}

void dropInheritedAccess(int file) {
    if (::flistxattr(file, nullptr, 0) == 0) // nearly always, and cheaper to find out than to try
        return;
    // Failures don't matter: there is no list, or there can't be one.
    static_cast<void>(::fremovexattr(file, kAccessList));
    static_cast<void>(::fremovexattr(file, kDefaultAccessList));
}

std::array<timespec, 2> timesOf(const struct stat& status) {
    return {status.st_atim, status.st_mtim};
}

timespec changeTimeOf(const struct stat& status) {
    return status.st_ctim;
}

int makeSpecial(int folder, const char* name, const struct stat& status) {
    const mode_t kind = status.st_mode & S_IFMT;
    return ::mknodat(folder, name, kind | S_IRUSR | S_IWUSR, status.st_rdev) == 0 ? 0 : errno;
}

} // namespace selvane::files
