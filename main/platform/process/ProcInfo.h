// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdint>
#include <map>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace selvane {

/// What a process has a file open for.
enum class FileUse { any, writing };

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
    /// Every readable process, in the kernel's order. Of their environments, which together can take hundreds
    /// of megabytes, only these variables and those of `kRecognitionVariables` are kept.
    static std::vector<ProcInfo> all(std::span<const std::string_view> variables = {});
    /// The paths of the files that a process has open; empty if that can't be determined.
    static std::vector<std::string> openFiles(std::int32_t pid, FileUse use);
    /// How many bytes a process has read so far from files and the like; 0 if that can't be determined.
    static std::int64_t bytesRead(std::int32_t pid);
    /// How many units of `startTime` make a second.
    static std::uint64_t startTimePerSecond();
    /// The `startTime` of a process that starts at that moment.
    static std::uint64_t startTimeAt(std::chrono::system_clock::time_point moment);

    bool operator==(const ProcInfo&) const = default;
};

/// The variables by which `Workspace::running` recognises applications.
inline constexpr std::array<std::string_view, 3> kRecognitionVariables = {
    "ELECTRON_RUN_AS_NODE", "GIO_LAUNCHED_DESKTOP_FILE", "GIO_LAUNCHED_DESKTOP_FILE_PID"};

/// Whether `ProcInfo::all(variables)` keeps a variable.
inline bool isKept(std::string_view variable, std::span<const std::string_view> variables) {
    const auto isIn = [&](const auto& names) {
        return std::find(names.begin(), names.end(), variable) != names.end();
    };
    return isIn(variables) || isIn(kRecognitionVariables);
}

} // namespace selvane
