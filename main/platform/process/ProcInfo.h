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

/// One process of the machine, as the kernel keeps it at the moment of reading.
struct ProcInfo {
    std::int32_t pid = 0;
    std::int32_t ppid = 0;       ///< 0 when it couldn't be read
    std::int32_t session = 0;    ///< pid of the process session's leader; 0 when it couldn't be read
    std::uint64_t startTime = 0; ///< tells a process from a later one with the same pid; 0 when unknown
    std::string path;            ///< absolute path of the executable, also when it was replaced since
    std::vector<std::string> args;
    std::map<std::string, std::string> env;

    /// Nothing when there is no such process or its executable can't be told (another user's process).
    static std::optional<ProcInfo> read(std::int32_t pid);
    /// Every readable process, in the order of the kernel's list.
    static std::vector<ProcInfo> all();
    /// The paths of the files that a process has open; empty when it can't be asked.
    static std::vector<std::string> openFiles(std::int32_t pid);
    /// The units in which `startTime` counts.
    static std::uint64_t startTimePerSecond();
    /// The `startTime` of a process that starts at that moment.
    static std::uint64_t startTimeAt(std::chrono::system_clock::time_point moment);

    bool operator==(const ProcInfo&) const = default;
};

} // namespace selvane
