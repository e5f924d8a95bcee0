// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>

namespace selvane {

/// The colours that a profile can have, in the order in which they are offered.
enum class Hue { moss, birch, clay, heather, wisteria, gentian, lake, slate };

inline constexpr std::array kHues = {Hue::moss,     Hue::birch,   Hue::clay, Hue::heather,
                                     Hue::wisteria, Hue::gentian, Hue::lake, Hue::slate};

/// The name on disk, which the user also sees, in Italian.
std::string_view name(Hue hue);

/// What a profile is known by at a glance.
struct ProfileLook {
    std::string symbol = "person.crop.circle"; ///< name of an SF Symbol
    /// Name of a hue, or empty for none. Any other name, perhaps of a later version, is kept.
    std::string color;

    std::optional<Hue> hue() const; ///< nothing if the colour is no hue's name

    bool operator==(const ProfileLook&) const = default;
};

} // namespace selvane
