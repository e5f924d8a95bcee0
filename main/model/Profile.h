// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <filesystem>
#include <optional>
#include <set>
#include <string>
#include <string_view>

#include "model/Component.h"
#include "model/ProfileMeta.h"

namespace selvane {

/// A profile: a Claude Code configuration folder with its metadata.
struct Profile {
    static constexpr std::string_view kDefaultId = "default";

    std::string id; ///< its folder's name in the profiles root, or "default" for the built-in profile
    ProfileMeta meta;
    std::filesystem::path configDir;
    /// The global state file, where it doesn't lie in `configDir`.
    std::optional<std::filesystem::path> globalState = std::nullopt;

    /// Whether a profile's folder, and so its account's, could have this name: a single path component that
    /// isn't hidden.
    static bool isPossibleId(std::string_view id);

    bool isDefault() const { return id == kDefaultId; }
    /// Profiles with the same owner share one Claude Desktop data folder.
    std::string accountOwner() const;
    /// `none` for a component without an entry, whatever its default mode is.
    ShareMode mode(Component component) const;
    std::set<std::string> excluded(Component component) const;
    std::filesystem::path
    url(Component component) const; ///< where the component is, whether it exists or not

    bool operator==(const Profile&) const = default;
};

} // namespace selvane
