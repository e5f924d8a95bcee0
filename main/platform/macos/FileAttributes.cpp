// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "platform/files/FileCopy.h"

#include <cerrno>
#include <climits>
#include <copyfile.h>
#include <memory>
#include <string>
#include <sys/acl.h>
#include <sys/socket.h>
#include <sys/un.h>

#include "platform/files/Descriptor.h"

namespace selvane::files {
namespace {

struct Freeing {
    void operator()(acl_t list) const { ::acl_free(list); }
};
using AccessList = std::unique_ptr<std::remove_pointer_t<acl_t>, Freeing>;

/// Whether the file system refused the call, as opposed to failing.
bool isUnsupported(int error) {
    return error == ENOTSUP || error == EOPNOTSUPP || error == EPERM;
}

/// The path under which to bind a socket: the system has no call that takes an open folder.
std::optional<std::string> pathIn(int folder, const char* name) {
    if (folder == AT_FDCWD)
        return name;
    std::string path(PATH_MAX, '\0');
    if (::fcntl(folder, F_GETPATH, path.data()) != 0)
        return std::nullopt;
    path.resize(path.find('\0'));
    return path + '/' + name;
}

int makeSocket(int folder, const char* name) {
    const std::optional<std::string> path = pathIn(folder, name);
    if (!path)
        return errno;
    sockaddr_un address = {};
    address.sun_family = AF_UNIX;
    if (path->size() >= sizeof address.sun_path)
        return ENAMETOOLONG;
    path->copy(address.sun_path, path->size());
    const Descriptor socket(::socket(AF_UNIX, SOCK_STREAM, 0));
    if (!socket)
        return errno;
    const auto* named = reinterpret_cast<const sockaddr*>(&address);
    return ::bind(socket.get(), named, sizeof address) == 0 ? 0 : errno;
}

} // namespace

Descriptor openOriginal(int folder, const char* name) {
    return Descriptor(::openat(folder, name, O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC));
}

std::optional<mode_t> copyAttributes(int from, int to, mode_t mode, Privacy privacy) {
    if (::fcopyfile(from, to, nullptr, COPYFILE_XATTR) != 0 && !isUnsupported(errno))
        return std::nullopt;
    constexpr mode_t kOwner = S_IRWXU;
    if (privacy == Privacy::ownerOnly) {
        dropInheritedAccess(to); // an access list can allow what the mode denies
        return mode & kOwner;
    }
    const AccessList list(::acl_get_fd_np(from, ACL_TYPE_EXTENDED));
    if (!list)
        return errno == ENOENT || isUnsupported(errno) ? std::optional(mode) : std::nullopt;
    if (::acl_set_fd_np(to, list.get(), ACL_TYPE_EXTENDED) == 0)
        return mode;
    // A list can also deny access, so without it no one else may be meant to have any.
    return isUnsupported(errno) ? std::optional<mode_t>(mode & kOwner) : std::nullopt;
}

void dropInheritedAccess(int file) {
    // Failures don't matter: there is no list, or there can't be one.
    if (const AccessList none{::acl_init(1)})
        static_cast<void>(::acl_set_fd_np(file, none.get(), ACL_TYPE_EXTENDED));
}

std::array<timespec, 2> timesOf(const struct stat& status) {
    return {status.st_atimespec, status.st_mtimespec};
}

timespec changeTimeOf(const struct stat& status) {
    return status.st_ctimespec;
}

int makeSpecial(int folder, const char* name, const struct stat& status) {
    constexpr mode_t kOwner = S_IRUSR | S_IWUSR;
    if (S_ISSOCK(status.st_mode))
        return makeSocket(folder, name);
    if (S_ISFIFO(status.st_mode))
        return ::mkfifoat(folder, name, kOwner) == 0 ? 0 : errno;
    const auto kind = static_cast<mode_t>(status.st_mode & S_IFMT);
    return ::mknodat(folder, name, kind | kOwner, status.st_rdev) == 0 ? 0 : errno;
}

} // namespace selvane::files
