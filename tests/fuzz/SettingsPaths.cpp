// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "store/SettingsPaths.h"

#include "Fuzzing.h"
#include "model/ByteText.h"
#include "platform/json/Json.h"

namespace selvane::fuzz {
namespace {

std::optional<Json> parsed(std::string_view text) {
    try {
        return json::parse(text, "f");
    } catch (const JsonError&) {
        return std::nullopt;
    }
}

/// Whether both documents are the same except for strings and keys that now name the target.
bool isSameButPaths(const Json& before, const Json& after, const std::string& target) {
    const auto isSameText = [&](const std::string& old, const std::string& now) {
        return old == now || now.find(target) != now.npos;
    };
    if (before.is_string() && after.is_string())
        return isSameText(before.get<std::string>(), after.get<std::string>());
    if (!before.is_structured() || before.type() != after.type())
        return before == after;
    if (before.size() != after.size())
        return false;
    auto now = after.items().begin();
    for (const auto& member : before.items()) {
        if ((before.is_object() && !isSameText(member.key(), now.key())) ||
            !isSameButPaths(member.value(), now.value(), target))
            return false;
        ++now;
    }
    return true;
}

Profile profileAt(std::string_view id, const std::string& folder) {
    Profile profile;
    profile.id = id;
    profile.configDir = "/" + folder;
    return profile;
}

/// The two folders and the text, separated by NULs.
void check(std::string_view text) {
    const Profile from = profileAt("default", std::string(takePart(text).substr(0, 24)));
    const Profile to = profileAt("lavoro", std::string(takePart(text).substr(0, 24)));
    const std::string result = withRewrittenPaths(text, from, to);
    require(text.find('/') != text.npos || result == text, "a text without paths stays as it is");
    require(result.size() <= text.size() * (6 * to.configDir.native().size() + 1), "and doesn't explode");
    const auto before = result == text ? std::nullopt : parsed(text);
    if (!before)
        return;
    const auto after = parsed(result);
    require(after.has_value(), "JSON stays JSON");
    require(isSameButPaths(*before, *after, textFromBytes(to.configDir.string())), "nothing else changes");
}

} // namespace
} // namespace selvane::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    selvane::fuzz::check(selvane::fuzz::textOf(data, size));
    return 0;
}
