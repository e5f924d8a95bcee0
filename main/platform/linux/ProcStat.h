// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace selvane {

/// The status line of a process, which anyone may read.
struct ProcStat {
    char state = 0;
    std::int32_t ppid = 0;
    std::int32_t session = 0;
    std::uint64_t startTime = 0;

    bool isEnded() const { return state == 'Z' || state == 'X'; } ///< only its exit status is left

    /// Nothing if the line is incomplete.
    static std::optional<ProcStat> parse(std::string_view line);
    /// Nothing if there is no such process.
    static std::optional<ProcStat> read(std::int32_t pid);
};

} // namespace selvane
