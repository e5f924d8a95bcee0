// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <vector>

#include "model/CodeSession.h"
#include "model/Profile.h"

namespace selvane {

class ProfileStore;

/// What somebody who chooses sessions to take along wants to know of each.
struct SessionState {
    std::int64_t size = 0;   ///< bytes of its transcripts; 0 if they are missing
    bool isInTarget = false; ///< its record is in the target's account, or waits to be placed there

    bool operator==(const SessionState&) const = default;
};

/// Those of `sessions`, which are the source's, in their order. What can't be read counts as missing.
std::vector<SessionState> sessionStates(const ProfileStore& store, const std::vector<CodeSession>& sessions,
                                        const Profile& source, const Profile& target);

} // namespace selvane
