// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "store/restore/TreeCounts.h"

#include "platform/files/TreeComparison.h"
#include "platform/files/TreeListing.h"

namespace selvane {
namespace {

namespace fs = std::filesystem;

fs::path at(const fs::path& top, const std::string& below) {
    return below.empty() ? top : top / below;
}

bool isThere(const fs::path& path) {
    struct stat status = {};
    return ::lstat(path.c_str(), &status) == 0 && !S_ISDIR(status.st_mode);
}

bool isSame(const fs::path& fresh, const fs::path& present) {
    try {
        return files::isCopy(fresh, present);
    } catch (const fs::filesystem_error&) {
        return false;
    }
}

} // namespace

void addCounts(const fs::path& fresh, const fs::path& present, RestoreCounts& counts) {
    const auto ignore = [](const std::string&, int) {};
    const auto compare = [&](const std::string& below, const struct stat& status) {
        if (S_ISDIR(status.st_mode))
            return true;
        const fs::path other = at(present, below);
        if (!isThere(other))
            ++counts.added;
        else
            ++(isSame(at(fresh, below), other) ? counts.same : counts.changed);
        return true;
    };
    files::listTree(fresh, {compare, ignore});
    const auto look = [&](const std::string& below, const struct stat& status) {
        if (!S_ISDIR(status.st_mode) && !isThere(at(fresh, below)))
            ++counts.gone;
        return true;
    };
    files::listTree(present, {look, ignore});
}

} // namespace selvane
