// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <filesystem>
#include <string>

namespace selvane {

/// A folder in the profiles root whose record is there, but damaged or unreadable.
struct DamagedProfile {
    std::string id;
    std::filesystem::path configDir;
    std::string reason; ///< in Italian, naming the record

    bool operator==(const DamagedProfile&) const = default;
};

} // namespace selvane
