// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <filesystem>

namespace selvane {

/// What a backup contains, as a set of bits.
struct BackupScope {
    std::uint32_t rawValue = 0;

    constexpr bool contains(BackupScope other) const { return (rawValue & other.rawValue) == other.rawValue; }
    bool operator==(const BackupScope&) const = default;

    static constexpr BackupScope principal() { return {1}; } ///< the built-in profile
    static constexpr BackupScope profiles() { return {2}; }  ///< the profiles root
    static constexpr BackupScope all() { return {3}; }
};

struct BackupResult {
    std::filesystem::path archive;
    std::int64_t size = 0;     ///< bytes
    bool skippedFiles = false; ///< some files couldn't be read

    bool operator==(const BackupResult&) const = default;
};

} // namespace selvane
