// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <chrono>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <map>
#include <string>
#include <vector>

namespace selvane {

using Environment = std::map<std::string, std::string>;

/// The environment of this process.
Environment currentEnvironment();

/// `$HOME` if it is an absolute path, otherwise the home folder from the user database.
std::filesystem::path homeFolder(const Environment& environment);

namespace process {

/// How long a program that has been stopped may take to go on.
inline constexpr std::chrono::milliseconds kStopLimit{10'000};

/// Runs a program to its end and discards its output; only the owner can read the files it creates. Returns
/// its exit status, or 128 plus the signal that ended it. The program ends if this process does. Throws
/// `std::filesystem::filesystem_error` naming the executable if it can't be started, and `LauncherError` if
/// somebody stops it and doesn't continue it within `stopLimit`; then it is ended. While it runs, `look` is
/// called several times a second with its pid; if that throws, the program is ended, too.
int run(const std::filesystem::path& executable, const std::vector<std::string>& arguments,
        const Environment& environment, const std::filesystem::path& folder,
        std::chrono::milliseconds stopLimit = kStopLimit,
        const std::function<void(std::int32_t pid)>& look = {});

struct Started {
    std::int32_t pid = 0;        ///< also its session
    std::uint64_t startTime = 0; ///< as in `ProcInfo`; if unreadable, a time just before the start
};

/// Starts a program that outlives this process: in a session of its own, with its standard streams connected
/// to the null device and none of our other files open. Throws `std::filesystem::filesystem_error` if it
/// can't be started, and `LauncherError` if it fails within its first moments. `pidVariable`, unless empty,
/// is set to the program's own pid in its environment.
Started startDetached(const std::filesystem::path& executable, const std::vector<std::string>& arguments,
                      const Environment& environment, const std::filesystem::path& folder,
                      const std::string& pidVariable = {});

} // namespace process
} // namespace selvane
