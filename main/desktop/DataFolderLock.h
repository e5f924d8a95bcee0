// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace selvane {

/// The lock that Chromium and Electron keep in a data folder: a link "HOST-PID", left behind by a crash.
struct DataFolderLock {
    std::string folder; ///< normalized
    std::string host;
    std::int32_t pid = 0;
    /// Whoever made the lock had started by then (as `ProcInfo::startTime`); 0 when that isn't known.
    std::uint64_t madeBefore = 0;

    /// Nothing when there is no lock.
    static std::optional<DataFolderLock> read(const std::string& folder);
    /// The lock whose link has this text; nothing when it isn't one.
    static std::optional<DataFolderLock> parse(const std::string& folder, std::string_view target);
};

} // namespace selvane
