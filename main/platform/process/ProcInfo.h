// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <chrono>
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace selvane {

/// One process, as the kernel describes it at the moment of reading.
struct ProcInfo {
    std::int32_t pid = 0;
    std::int32_t ppid = 0;       ///< 0 if it couldn't be read
    std::int32_t session = 0;    ///< pid of its session leader; 0 if it couldn't be read
    std::uint64_t startTime = 0; ///< distinguishes it from a later process with the same pid; 0 if unknown
    std::string path;            ///< absolute path of the executable, even if it has been replaced since
    std::vector<std::string> args;
    std::map<std::string, std::string> env;

    /// Nothing if there is no such process or its executable is unknown (another user's process).
    static std::optional<ProcInfo> read(std::int32_t pid);
    /// Every readable process, in the kernel's order.
    static std::vector<ProcInfo> all();
    /// The paths of the files that a process has open; empty if that can't be determined.
    static std::vector<std::string> openFiles(std::int32_t pid);
    /// How many units of `startTime` make a second.
    static std::uint64_t startTimePerSecond();
    /// The `startTime` of a process that starts at that moment.
    static std::uint64_t startTimeAt(std::chrono::system_clock::time_point moment);

    bool operator==(const ProcInfo&) const = default;
};

} // namespace selvane
