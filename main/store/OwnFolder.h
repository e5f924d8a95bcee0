// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <filesystem>
#include <string>
#include <unordered_set>

#include "model/Profile.h"

namespace selvane {

/// Throws `LauncherError` if `folder`, or a folder between it and `top`, is a link: whatever is written there
/// would end up outside `top`.
void requireNoLink(const std::filesystem::path& top, const std::filesystem::path& folder);
/// The same. Then creates what is missing of `folder`, but never `top`.
void createOwnFolder(const std::filesystem::path& top, const std::filesystem::path& folder);
/// The same below a profile's folder. That is created too if it is the built-in profile's; any other has been
/// deleted.
void createOwnFolder(const Profile& profile, const std::filesystem::path& folder);

/// Folders of a profile for many files: each is looked at, and created if it is missing, only once.
class OwnFolders {
public:
    explicit OwnFolders(const Profile& profile) : m_profile(profile) {}

    const Profile& profile() const { return m_profile; }
    /// The first time, `createOwnFolder`.
    void create(const std::filesystem::path& folder);

private:
    const Profile& m_profile;
    std::unordered_set<std::string> m_created;
};

} // namespace selvane
