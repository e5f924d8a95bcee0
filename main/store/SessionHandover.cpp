// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "store/SessionHandover.h"

#include <array>

#include "platform/json/Json.h"
#include "platform/json/JsonMembers.h"
#include "platform/json/SessionRecord.h"

namespace selvane {
namespace {

constexpr std::array<std::string_view, 6> kAccountBoundKeys = {
    "remoteMcpServersConfig", "enabledMcpTools",           "toolSurfaceSnapshot",
    "promptAppendSnapshot",   "remoteControlAutoEligible", "steeredByRemoteClient"};

} // namespace

std::string withoutAccount(const std::string& record, const std::filesystem::path& file) {
    if (isStrictJson(record)) {
        if (auto laidOut = json::withoutMembers(record, kAccountBoundKeys))
            return std::move(*laidOut);
    }
    Json object = json::parse(record, file);
    if (!object.is_object()) // only an object has keys to remove
        return record;
    for (const std::string_view key : kAccountBoundKeys)
        json::remove(object, key);
    return json::serialized(object);
}

} // namespace selvane
