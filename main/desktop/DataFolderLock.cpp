// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "desktop/DataFolderLock.h"

#include <sys/stat.h>

#include <charconv>
#include <chrono>
#include <filesystem>

#include "platform/process/ProcInfo.h"

namespace selvane {

std::optional<DataFolderLock> DataFolderLock::parse(const std::string& folder, std::string_view target) {
    const std::size_t dash = target.rfind('-'); // a host name can contain dashes
    if (dash == std::string_view::npos)
        return std::nullopt;
    const std::string_view number = target.substr(dash + 1);
    std::int32_t pid = 0;
    const auto [end, error] = std::from_chars(number.data(), number.data() + number.size(), pid);
    if (error != std::errc() || end != number.data() + number.size() || pid <= 0)
        return std::nullopt;
    return DataFolderLock{folder, std::string(target.substr(0, dash)), pid, 0};
}

std::optional<DataFolderLock> DataFolderLock::read(const std::string& folder) {
    using namespace std::chrono;
    constexpr seconds kClockError(2); // the file system's clock against the kernel's
    const std::string link = folder + "/SingletonLock";
    std::error_code unreadable; // one piece of evidence among others
    auto lock = parse(folder, std::filesystem::read_symlink(link, unreadable).native());
    struct stat status = {};
    if (lock && ::lstat(link.c_str(), &status) == 0)
        lock->madeBefore =
            ProcInfo::startTimeAt(system_clock::from_time_t(status.st_mtime) + seconds(1) + kClockError);
    return lock;
}

} // namespace selvane
