// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <filesystem>
#include <map>
#include <string>
#include <vector>

namespace selvane {

using Environment = std::map<std::string, std::string>;

/// The environment this process was started with.
Environment currentEnvironment();

/// `$HOME` when it is an absolute path, else the home folder of the user database.
std::filesystem::path homeFolder(const Environment& environment);

namespace process {

/// Runs a program to its end with its output discarded, files it makes readable by the owner alone. Returns
/// its exit status, or 128 plus the signal that ended it. It ends with this process. Throws
/// `std::filesystem::filesystem_error` naming the executable when it can't be started.
int run(const std::filesystem::path& executable, const std::vector<std::string>& arguments,
        const Environment& environment, const std::filesystem::path& folder);

struct Started {
    std::int32_t pid = 0;        ///< also the number of its session
    std::uint64_t startTime = 0; ///< at the latest, as `ProcInfo::startTime`
};

/// Starts a program that outlives this process: a session of its own, standard streams to the null device,
/// no other file of ours open. Throws `std::filesystem::filesystem_error` when it can't be started, and
/// `LauncherError` when it ends with a failure within its first moments.
/// `pidVariable`, when not empty, is set in its environment to its own process id.
Started startDetached(const std::filesystem::path& executable, const std::vector<std::string>& arguments,
                      const Environment& environment, const std::filesystem::path& folder,
                      const std::string& pidVariable = {});

} // namespace process
} // namespace selvane
