// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "platform/files/DiskUsage.h"

#include <set>
#include <sys/stat.h>
#include <utility>

#include "platform/files/Progress.h"
#include "platform/files/TreeListing.h"

namespace selvane {

namespace fs = std::filesystem;

std::uintmax_t diskUsage(const std::vector<fs::path>& paths, const Progress* progress) {
    constexpr std::uintmax_t kBlock = 512; // the unit of st_blocks
    const auto isCancelled = [&] { return progress != nullptr && progress->isCancelled(); };
    std::uintmax_t bytes = 0;
    std::set<std::pair<dev_t, ino_t>> counted; // those with several names
    for (const fs::path& path : paths) {
        struct stat top = {};
        if (::stat(path.c_str(), &top) != 0)
            continue;
        const auto visit = [&](const std::string&, const struct stat& status) {
            if (status.st_dev != top.st_dev || isCancelled())
                return false;
            const bool hasOneName = S_ISDIR(status.st_mode) || status.st_nlink == 1;
            if (hasOneName || counted.emplace(status.st_dev, status.st_ino).second)
                bytes += static_cast<std::uintmax_t>(status.st_blocks) * kBlock;
            return true;
        };
        if (S_ISDIR(top.st_mode))
            files::listTree(path / "", {visit, [](const std::string&, int) {}});
        else
            static_cast<void>(visit({}, top));
        if (isCancelled())
            throw fs::filesystem_error("count", path, std::make_error_code(std::errc::operation_canceled));
    }
    return bytes;
}

} // namespace selvane
