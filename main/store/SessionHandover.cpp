// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "store/SessionHandover.h"

#include <array>
#include <span>

#include "platform/json/Json.h"
#include "platform/json/JsonMembers.h"
#include "platform/json/SessionRecord.h"

namespace selvane {
namespace {

using Keys = std::span<const std::string_view>;

constexpr std::string_view kPlaceNoteEnd = ".organisation";
constexpr std::array<std::string_view, 7> kDroppedKeys = {
    "remoteMcpServersConfig",    "enabledMcpTools",       "toolSurfaceSnapshot", "promptAppendSnapshot",
    "remoteControlAutoEligible", "steeredByRemoteClient", "isArchived"};
constexpr Keys kAccountBoundKeys = Keys(kDroppedKeys).first(6);

std::string withoutKeys(Keys keys, const std::string& record, const std::filesystem::path& file) {
    if (isStrictJson(record)) {
        if (auto laidOut = json::withoutMembers(record, keys))
            return std::move(*laidOut);
    }
    Json object = json::parse(record, file);
    if (!object.is_object()) // only an object has keys to remove
        return record;
    for (const std::string_view key : keys)
        json::remove(object, key);
    return json::serialized(object);
}

} // namespace

bool isSessionRecord(std::string_view name) {
    return name.starts_with("local_") && name.ends_with(".json");
}

std::string placeNoteFor(std::string_view record) {
    return "." + std::string(record) + std::string(kPlaceNoteEnd);
}

bool isPlaceNote(std::string_view name) {
    return name.starts_with('.') && name.ends_with(kPlaceNoteEnd);
}

std::string withoutAccount(const std::string& record, const std::filesystem::path& file) {
    return withoutKeys(kAccountBoundKeys, record, file);
}

std::string continuedRecord(const std::string& record, const std::filesystem::path& file) {
    return withoutKeys(kDroppedKeys, record, file);
}

} // namespace selvane
