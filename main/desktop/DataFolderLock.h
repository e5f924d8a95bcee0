// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace selvane {

/// The lock that Chromium and Electron keep in a data folder: a symbolic link to "HOST-PID". It can outlive
/// its process.
struct DataFolderLock {
    std::string folder; ///< normalized
    std::string host;
    std::int32_t pid = 0;
    /// The process that made the lock started before this (same unit as `ProcInfo::startTime`); 0 if unknown.
    std::uint64_t madeBefore = 0;

    /// Nothing if there is no lock.
    static std::optional<DataFolderLock> read(const std::string& folder);
    /// Parses the link's target; nothing if it isn't a lock.
    static std::optional<DataFolderLock> parse(const std::string& folder, std::string_view target);
};

} // namespace selvane
