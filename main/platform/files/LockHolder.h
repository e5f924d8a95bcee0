// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <sys/stat.h>

namespace selvane {

/// A process that holds a lock.
struct LockHolder {
    std::int32_t pid = 0;
    std::string name; ///< its program's; "" if unknown
    bool isStopped = false;

    /// The process that has locked the folder `status` describes with flock(). Nothing if nobody has or the
    /// system doesn't tell.
    static std::optional<LockHolder> of(const struct stat& status);
};

} // namespace selvane
