// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "store/conversations/TranscriptCopies.h"

#include <optional>
#include <sys/stat.h>

#include "platform/files/Descriptor.h"
#include "platform/files/FileCopy.h"
#include "platform/files/TreeComparison.h"
#include "platform/files/TreeListing.h"

namespace selvane {
namespace {

namespace fs = std::filesystem;

using CopyKind = TranscriptCopy::Kind;

std::optional<struct stat> lookUp(const fs::path& path) {
    struct stat status = {};
    if (::lstat(path.c_str(), &status) == 0)
        return status;
    if (!files::meansMissing(errno))
        files::fail("look up", path, errno);
    return std::nullopt;
}

bool isNewer(const struct stat& a, const struct stat& b) {
    const auto [left, right] = std::pair(files::timesOf(a)[1], files::timesOf(b)[1]);
    return left.tv_sec != right.tv_sec ? left.tv_sec > right.tv_sec : left.tv_nsec > right.tv_nsec;
}

CopyKind kindOf(const fs::path& from, const struct stat& ours, const fs::path& to,
                const struct stat& theirs) {
    if (!S_ISREG(ours.st_mode) || !S_ISREG(theirs.st_mode) || theirs.st_size > ours.st_size ||
        !files::beginsWith(from, to))
        return CopyKind::kept;
    if (theirs.st_size == ours.st_size)
        return CopyKind::present;
    return isNewer(theirs, ours) ? CopyKind::kept : CopyKind::continued;
}

std::int64_t sizeOf(const struct stat& status) {
    return S_ISREG(status.st_mode) ? static_cast<std::int64_t>(status.st_size) : 0;
}

/// The bytes of a file, or of everything below a folder.
std::int64_t sizeOf(const fs::path& path, const struct stat& top) {
    if (!S_ISDIR(top.st_mode))
        return sizeOf(top);
    std::int64_t size = 0;
    const auto add = [&](const std::string&, const struct stat& status) {
        size += sizeOf(status);
        return true;
    };
    files::listTree(path, {add, [](const std::string&, int) {}});
    return size;
}

} // namespace

std::vector<TranscriptCopy> transcriptCopies(const std::string& cliSessionID, const fs::path& from,
                                             const fs::path& to, Existing existing) {
    std::vector<TranscriptCopy> copies;
    for (const std::string& name : {cliSessionID + ".jsonl", cliSessionID}) {
        const fs::path origin = from / name;
        const fs::path target = to / name;
        const auto ours = lookUp(origin);
        if (!ours)
            continue;
        const auto theirs = lookUp(target);
        if (!theirs) {
            copies.push_back({origin, target, sizeOf(origin, *ours), CopyKind::added});
            continue;
        }
        if (existing == Existing::kept) {
            copies.push_back({origin, target, 0, CopyKind::kept});
            continue;
        }
        if (!S_ISDIR(ours->st_mode) || !S_ISDIR(theirs->st_mode)) {
            copies.push_back({origin, target, sizeOf(origin, *ours), kindOf(origin, *ours, target, *theirs)});
            continue;
        }
        const auto compare = [&](const std::string& below, const struct stat& status) {
            if (below.empty())
                return true;
            const fs::path place = target / below;
            const auto there = lookUp(place);
            if (S_ISDIR(status.st_mode) && there)
                return S_ISDIR(there->st_mode);
            const CopyKind kind = there ? kindOf(origin / below, status, place, *there) : CopyKind::added;
            copies.push_back(
                {origin / below, place, there ? sizeOf(status) : sizeOf(origin / below, status), kind});
            return false;
        };
        const auto failed = [&](const std::string& below, int error) {
            files::fail("look up", origin / below, error);
        };
        files::listTree(origin, {compare, failed});
    }
    return copies;
}

} // namespace selvane
