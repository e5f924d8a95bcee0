// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <optional>
#include <vector>

#include "desktop/OpenCopies.h"
#include "model/Profile.h"

namespace selvane {

/// Where a sign-in could go: to an open copy of Claude Desktop, or to a profile that is opened for it.
struct SignInTarget {
    Profile profile;
    std::optional<OpenCopy> copy; ///< nothing if the profile has to be launched
    bool isSignedIn = false;      ///< whether somebody has signed in with its account before

    bool operator==(const SignInTarget&) const = default;
};

struct SignInTargets {
    std::vector<SignInTarget> targets; ///< the open copies or, if none is open, one profile for each account
    std::size_t preset = 0;            ///< the likely one: of those not signed in, the one launched last

    /// Whether the user has to choose. Otherwise there is at most one target.
    bool mustAsk() const { return targets.size() > 1; }
};

} // namespace selvane
