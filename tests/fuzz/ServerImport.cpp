// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "store/ServerImport.h"

#include "Fuzzing.h"

namespace selvane::fuzz {
namespace {

using Members = std::vector<Json::object_t::value_type>;

const std::string kServers = "mcpServers";
const std::string kOnboarding = "hasCompletedOnboarding";

std::optional<Json> parsed(std::string_view text) {
    try {
        return json::parse(text, "f");
    } catch (const JsonError&) {
        return std::nullopt;
    }
}

void requireSameAgain(const Json& value) {
    const std::string text = json::serialized(value);
    const auto again = parsed(text);
    require(again && *again == value, "what is written is read the same");
}

/// The members that an import must not touch, in order.
Members otherMembers(const Json& object) {
    Members others;
    for (const auto& member : object.get_ref<const Json::object_t&>()) {
        if (member.first != kServers && member.first != kOnboarding)
            others.push_back(member);
    }
    return others;
}

void checkImport(const Json& source, const std::optional<Json>& target) {
    const ServerImport imported = importedServers(source, target);
    requireSameAgain(imported.state);
    const Json before = target.value_or(Json::object());
    require(otherMembers(imported.state) == otherMembers(before), "all other keys survive");

    const Json* const wanted = json::find(source, kServers);
    const Json* const old = json::find(before, kServers);
    const Json* const now = json::find(imported.state, kServers);
    if (wanted != nullptr && wanted->is_object())
        require(now != nullptr && *now == *wanted, "the servers are the source's");
    else
        require(old == nullptr ? now == nullptr : now != nullptr && *now == *old, "or stay as they were");
    if (old != nullptr && old->is_object() && now != nullptr && !imported.losesServers) {
        for (const auto& server : old->items()) {
            const Json* const kept = json::find(*now, server.key());
            require(kept != nullptr && *kept == *json::find(*old, server.key()), "none is lost untold");
        }
    }
    require(importedServers(source, imported.state).state == imported.state, "a second import does nothing");
}

/// The source and, after a NUL, the target.
void check(std::string_view input) {
    const std::optional<Json> source = parsed(takePart(input));
    if (!source)
        return;
    requireSameAgain(*source);
    const std::optional<Json> target = input.empty() ? std::nullopt : parsed(input);
    if (!target || target->is_object())
        checkImport(*source, target);
}

} // namespace
} // namespace selvane::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    selvane::fuzz::check(selvane::fuzz::textOf(data, size));
    return 0;
}
