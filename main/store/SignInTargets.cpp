// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "store/SignInTargets.h"

#include <algorithm>

#include "store/Facts.h"
#include "store/ProfileStore.h"

namespace selvane {
namespace {

/// Whether `one` is likelier than `other` to be what the user has just signed in to.
bool isLikelier(const SignInTarget& one, const SignInTarget& other) {
    if (one.isSignedIn != other.isSignedIn)
        return !one.isSignedIn;
    return one.profile.meta.lastLaunched.value_or(Timestamp()) >
           other.profile.meta.lastLaunched.value_or(Timestamp());
}

} // namespace

SignInTargets ProfileStore::signInTargets() const {
    const std::vector<Profile> profiles = loadAll();
    SignInTargets result;
    std::vector<ClaudeApp::Instance> copies;
    try {
        copies = claudeInstances();
    } catch (const std::exception&) { // as if none were open: launching says what is wrong
    }
    const auto add = [&](const Profile& profile, const std::optional<ClaudeApp::Instance>& copy) {
        result.targets.push_back({profile, copy, hasDesktopLogin(*this, profile)});
    };
    for (const ClaudeApp::Instance& copy : copies) {
        // If its configuration isn't known, any profile with this account is good enough: only the account
        // counts.
        auto found = std::ranges::find_if(profiles, [&](const Profile& each) {
            return runs(copy, each) && usesDataFolder(each, copy.dataDir);
        });
        if (found == profiles.end())
            found = std::ranges::find_if(profiles, [&](const Profile& each) {
                return !copy.dataDir.empty() && usesDataFolder(each, copy.dataDir);
            });
        if (found != profiles.end())
            add(*found, copy);
    }
    if (result.targets.empty()) {
        for (const Profile& profile : profiles) {
            const auto same = std::ranges::find_if(result.targets, [&](const SignInTarget& each) {
                return each.profile.accountOwner() == profile.accountOwner();
            });
            if (same == result.targets.end())
                add(profile, std::nullopt);
            else if (profile.meta.lastLaunched > same->profile.meta.lastLaunched)
                same->profile = profile;
        }
    }
    for (std::size_t i = 1; i < result.targets.size(); ++i) {
        if (isLikelier(result.targets[i], result.targets[result.preset]))
            result.preset = i;
    }
    return result;
}

} // namespace selvane
