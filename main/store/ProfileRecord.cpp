// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "store/ProfileRecord.h"

#include <map>

#include "platform/json/Json.h"

namespace selvane {

std::string encoded(const ProfileMeta& meta) {
    return json::serialized(toJson(meta));
}

std::string encoded(const ProfileMeta& meta, std::string_view before) {
    std::map<std::string, Json> members;
    Json old = json::parse(before, {});
    for (auto& [key, value] : old.get_ref<Json::object_t&>()) {
        if (!isProfileMetaKey(key))
            members[key] = std::move(value);
    }
    Json known = toJson(meta);
    for (auto& [key, value] : known.get_ref<Json::object_t&>())
        members[key] = std::move(value);
    Json record = Json::object();
    for (auto& [key, value] : members)
        json::append(record, key, std::move(value));
    return json::serialized(record);
}

std::optional<ProfileMeta> decodedProfileMeta(std::string_view text) {
    try {
        return profileMeta(json::parse(text, {}));
    } catch (const JsonError&) {
        return std::nullopt;
    }
}

} // namespace selvane
