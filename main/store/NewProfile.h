// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <map>
#include <optional>
#include <set>
#include <string>

#include "model/Component.h"
#include "model/Profile.h"
#include "model/ShareMode.h"

namespace selvane {

/// The parts of a new profile.
struct NewProfile {
    std::string name; ///< trimmed before use; must not be blank
    std::string summary;
    ProfileLook look;
    std::optional<Profile> from;                          ///< the source of its components
    std::map<Component, ShareMode> modes;                 ///< the default mode for those not listed
    std::map<Component, std::set<std::string>> selection; ///< items to take; all of them for those not listed
    std::optional<std::string> account;                   ///< id of the profile whose account it uses
    bool isolated = false;                                ///< see `ProfileStore::setIsolated`
};

} // namespace selvane
