// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>

namespace selvane {

/// Bytes on the disk. A file with several names counts once; what lies on other file systems, and what can't
/// be looked at, doesn't count.
struct ProfileSize {
    std::uintmax_t configuration = 0;
    std::uintmax_t account = 0; ///< one figure for all profiles with this account

    bool operator==(const ProfileSize&) const = default;
};

} // namespace selvane
