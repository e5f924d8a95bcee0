// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <chrono>
#include <map>
#include <nlohmann/json_fwd.hpp>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "model/ProfileLook.h"
#include "model/ShareMode.h"

namespace selvane {

using Timestamp = std::chrono::sys_seconds; ///< UTC, whole seconds

Timestamp currentTimestamp();

/// The metadata of one profile, as stored in its `.launcher.json`.
struct ProfileMeta {
    std::string name;
    std::string summary;
    ProfileLook look;                       ///< "symbol" and "color" in the record
    std::optional<std::string> source;      ///< id of the profile its components come from
    std::map<std::string, ShareMode> modes; ///< by the component's raw value
    /// By the component's raw value: names of items deliberately left out. Names are bytes.
    std::map<std::string, std::vector<std::string>> excluded;
    /// Whether Claude Code is kept from reading those instructions of the built-in profile that this profile
    /// doesn't take.
    bool isolated = false;
    /// By the component's raw value: names of items that are to stay the profile's own although their
    /// component is shared. Names are bytes.
    std::map<std::string, std::vector<std::string>> keptOwn;
    std::optional<std::string> account; ///< id of the profile whose account it uses; nothing for its own
    Timestamp created = currentTimestamp();
    std::optional<Timestamp> lastLaunched;

    bool operator==(const ProfileMeta&) const = default;
};

/// The record as an object with sorted keys and dates like 2025-03-01T09:30:00Z.
nlohmann::ordered_json toJson(const ProfileMeta& meta);

/// Whether a record's key is one that `toJson` writes.
bool isProfileMetaKey(std::string_view key);

/// Reads a record. Keys other than "name" may be missing or null; unknown keys are ignored. Returns nothing
/// if the value is no object, has no name, or gives a known key a wrong type or an invalid value.
std::optional<ProfileMeta> profileMeta(const nlohmann::ordered_json& record);

} // namespace selvane
