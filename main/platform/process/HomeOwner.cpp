// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "platform/process/HomeOwner.h"

#include <array>
#include <cerrno>
#include <grp.h>
#include <pwd.h>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

namespace selvane {
namespace {

/// Calls `initgroups`, whose group has another type on macOS.
template <typename Group>
bool joinGroups(int (*join)(const char*, Group), const passwd& user) {
    return join(user.pw_name, static_cast<Group>(user.pw_gid)) == 0;
}

/// Sets the groups of a user; `group` alone for one that the system has no record of.
bool setGroups(uid_t user, gid_t group) {
    std::array<char, 16384> buffer = {};
    passwd entry = {};
    passwd* found = nullptr;
    ::getpwuid_r(user, &entry, buffer.data(), buffer.size(), &found);
    if (found == nullptr)
        return ::setgroups(1, &group) == 0 && ::setgid(group) == 0;
    return joinGroups(::initgroups, *found) && ::setgid(found->pw_gid) == 0;
}

} // namespace

void becomeOwnerOf(const std::filesystem::path& home) {
    struct stat status = {};
    if (::getuid() != 0 || ::geteuid() != 0 || ::stat(home.c_str(), &status) != 0 || status.st_uid == 0)
        return;
    // In a container, the owner may be nobody whom this process could become.
    if (::seteuid(status.st_uid) != 0)
        return;
    if (::seteuid(0) != 0 || !setGroups(status.st_uid, status.st_gid) || ::setuid(status.st_uid) != 0)
        throw std::system_error(errno, std::generic_category(), home.string());
}

} // namespace selvane
