// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "store/ProfileRecord.h"

#include "platform/json/Json.h"

namespace selvane {

std::string encoded(const ProfileMeta& meta) {
    return json::serialized(toJson(meta));
}

std::optional<ProfileMeta> decodedProfileMeta(std::string_view text) {
    try {
        return profileMeta(json::parse(text, {}));
    } catch (const JsonError&) {
        return std::nullopt;
    }
}

} // namespace selvane
