// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "store/ServerImport.h"

#include <algorithm>

namespace selvane {
namespace {

constexpr std::string_view kOnboardingKey = "hasCompletedOnboarding";

const Json* serversIn(const Json& globalState) {
    const Json* servers = json::find(globalState, kServersKey);
    return servers != nullptr && servers->is_object() ? servers : nullptr;
}

/// Whether `all` contains every entry of `some`.
bool isContained(const Json* some, const Json& all) {
    if (some == nullptr)
        return true;
    const auto entries = some->items();
    return std::all_of(entries.begin(), entries.end(), [&](const auto& entry) {
        const Json* same = json::find(all, entry.key());
        return same != nullptr && *same == entry.value();
    });
}

bool isTrue(const Json& object, std::string_view key) {
    const Json* value = json::find(object, key);
    return value != nullptr && value->is_boolean() && value->get<bool>();
}

} // namespace

ServerImport importedServers(const Json& source, const std::optional<Json>& target) {
    ServerImport result{target.value_or(Json::object()), false};
    if (const Json* servers = serversIn(source)) {
        result.losesServers = !isContained(serversIn(result.state), *servers);
        json::set(result.state, kServersKey, *servers);
    }
    // Otherwise Claude Code would take a known user through its first steps again.
    if (!target && isTrue(source, kOnboardingKey))
        json::set(result.state, kOnboardingKey, true);
    return result;
}

} // namespace selvane
