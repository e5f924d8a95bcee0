// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "model/ProfileLook.h"

#include <algorithm>

namespace selvane {

std::string_view name(Hue hue) {
    static constexpr std::array<std::string_view, kHues.size()> kNames = {
        "Muschio", "Betulla", "Argilla", "Erica", "Glicine", "Genziana", "Lago", "Ardesia"};
    return kNames.at(static_cast<std::size_t>(hue));
}

std::optional<Hue> ProfileLook::hue() const {
    const auto* const found =
        std::find_if(kHues.begin(), kHues.end(), [this](Hue hue) { return name(hue) == color; });
    return found == kHues.end() ? std::nullopt : std::optional(*found);
}

} // namespace selvane
