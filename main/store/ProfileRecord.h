// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "model/ProfileMeta.h"

namespace selvane {

/// The text of a profile's record: pretty-printed, with sorted keys.
std::string encoded(const ProfileMeta& meta);
/// The same for a record that replaces the valid record `before`, whose unknown keys stay.
std::string encoded(const ProfileMeta& meta, std::string_view before);

/// Reads such a text; nothing when it is no JSON or no record (see `profileMeta`).
std::optional<ProfileMeta> decodedProfileMeta(std::string_view text);

} // namespace selvane
