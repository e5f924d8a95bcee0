// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "platform/files/FileState.h"

#include "platform/files/Descriptor.h"
#include "platform/files/FileCopy.h"
#include "platform/files/TreeListing.h"

namespace selvane::files {
namespace {

std::int64_t nanoseconds(const timespec& time) {
    constexpr std::int64_t kSecond = 1'000'000'000;
    return std::int64_t{time.tv_sec} * kSecond + time.tv_nsec;
}

} // namespace

FileIdentity FileIdentity::of(const struct stat& status) {
    return {status.st_dev, status.st_ino, status.st_mode, status.st_size, nanoseconds(timesOf(status)[1])};
}

FileState stateOf(const std::filesystem::path& path) {
    struct stat status = {};
    if (::lstat(path.c_str(), &status) != 0) {
        if (!meansMissing(errno))
            fail("look up", path, errno);
        return Nothing{};
    }
    if (S_ISLNK(status.st_mode))
        return LinkText{std::filesystem::read_symlink(path)};
    TreeState state{FileIdentity::of(status), {}};
    if (!S_ISDIR(status.st_mode))
        return state;
    const auto visit = [&](const std::string& below, const struct stat& entry) {
        // Renaming the top counts as a change of it, so when it last changed says nothing.
        if (!below.empty())
            state.below[below] = {FileIdentity::of(entry), nanoseconds(changeTimeOf(entry))};
        return true;
    };
    const auto failed = [&](const std::string& below, int error) { fail("look up", path / below, error); };
    listTree(path, {visit, failed});
    return state;
}

} // namespace selvane::files
