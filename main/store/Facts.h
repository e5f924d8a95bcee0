// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT
//
// What the windows tell of a profile.

#pragma once

#include <optional>
#include <string>

#include "model/Profile.h"
#include "model/ProfileSize.h"

namespace selvane {

class ProfileStore;

/// The address with which Claude Code is signed in, as its state says (`oauthAccount`); nothing if it isn't,
/// or if that can't be read. No token is read. Never fails. The text is another program's: clean it before it
/// is shown.
std::optional<std::string> agentAddress(const ProfileStore& store, const Profile& profile);
/// Whether somebody has signed in to Claude Desktop with the profile's account: whether its data has a folder
/// of an account for the Code tab, which Claude Desktop makes when that tab is first used. False if that
/// can't be read; never fails.
bool hasDesktopLogin(const ProfileStore& store, const Profile& profile);
/// How much its configuration folder and its account's data take up on the disk. May take long: a store with
/// a `Progress` can be cancelled, and then throws `operation_canceled`.
ProfileSize sizeOnDisk(const ProfileStore& store, const Profile& profile);

} // namespace selvane
