// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "store/ProfileStore.h"

#include <algorithm>

#include "model/ByteText.h"
#include "platform/Json.h"

namespace selvane {
namespace {

namespace fs = std::filesystem;

struct Replacement {
    std::string from;
    std::string to;
};

/// In one pass: what was put in is not looked at again, also where it begins like what is replaced.
std::string replaced(std::string_view text, const std::vector<Replacement>& replacements) {
    std::string result;
    while (!text.empty()) {
        const auto found =
            std::find_if(replacements.begin(), replacements.end(),
                         [&](const Replacement& candidate) { return text.starts_with(candidate.from); });
        result += found == replacements.end() ? text.substr(0, 1) : std::string_view(found->to);
        text.remove_prefix(found == replacements.end() ? 1 : found->from.size());
    }
    return result;
}

/// A text as it stands between the quotes of a JSON string.
std::string jsonEscaped(const std::string& bytes, bool asciiOnly) {
    const std::string quoted = Json(textFromBytes(bytes)).dump(-1, ' ', asciiOnly);
    return quoted.substr(1, quoted.size() - 2);
}

/// The spellings that a path can have inside a JSON file.
std::vector<std::string> jsonSpellings(const fs::path& path) {
    std::vector<std::string> spellings = {path.string()};
    for (const bool asciiOnly : {false, true}) {
        std::string spelling = jsonEscaped(path.string(), asciiOnly);
        if (spelling != spellings.front())
            spellings.push_back(std::move(spelling));
    }
    return spellings;
}

const Json* serversIn(const Json& globalState) {
    const Json* servers = json::find(globalState, "mcpServers");
    return servers != nullptr && servers->is_object() ? servers : nullptr;
}

/// Whether every entry of `some` stands in `all` as well.
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

/// Makes the paths in a settings file that lead into the source's folder lead into the profile's.
void ProfileStore::rewritePaths(const fs::path& file, const Profile& from, const Profile& to) {
    const auto before = m_files.readIfPossible(file);
    if (!before)
        return;
    const std::string target = jsonEscaped(to.configDir.string(), false);
    std::vector<Replacement> replacements;
    for (const std::string& source : jsonSpellings(from.configDir)) {
        for (const std::string end : {"/", "\""})
            replacements.push_back({source + end, target + end});
    }
    if (from.isDefault())
        replacements.push_back({"~/.claude/", target + "/"});
    const std::string after = replaced(*before, replacements);
    if (after != *before)
        m_files.write(file, after);
}

void ProfileStore::importSettings(const Profile& to, const Profile& from) {
    const std::string_view name = "settings.json";
    const fs::path origin = from.configDir / name;
    if (!m_files.isPresent(origin))
        return;
    m_files.replaceTrashing(to.configDir / name, [&](const fs::path& temporary) {
        m_files.copy(m_files.resolved(origin), temporary, Privacy::ownerOnly);
        rewritePaths(temporary, from, to);
    });
}

void ProfileStore::importPlugins(const Profile& to, const Profile& from) {
    const fs::path origin = from.url(Component::plugins);
    if (!m_files.isPresent(origin))
        return;
    m_files.replaceTrashing(to.url(Component::plugins), [&](const fs::path& temporary) {
        m_files.copy(m_files.resolved(origin), temporary);
        for (const std::string& name : m_files.entries(temporary)) {
            // A link leads to a file that isn't the profile's.
            if (name.ends_with(".json") && m_files.isRegularFile(temporary / name))
                rewritePaths(temporary / name, from, to);
        }
    });
}

void ProfileStore::importMCP(const Profile& to, const Profile& from) {
    const fs::path origin = globalJSON(from);
    if (!m_files.isPresent(origin))
        return;
    const Json source = json::parse(m_files.read(origin), origin);
    const Json* servers = serversIn(source);
    // Otherwise Claude Code would greet a user it knows with its first steps.
    const bool onboarded = isTrue(source, "hasCompletedOnboarding");

    const fs::path file = globalJSON(to);
    const bool isNew = !m_files.exists(file);
    Json state = isNew ? Json::object() : json::parse(m_files.read(file), file);
    if (!state.is_object())
        throw JsonError(file.string() + ": non è un oggetto JSON");
    const bool losesServers = servers != nullptr && !isContained(serversIn(state), *servers);

    Json changed = state;
    if (servers != nullptr)
        json::set(changed, "mcpServers", *servers);
    if (isNew && onboarded)
        json::set(changed, "hasCompletedOnboarding", true);
    if (changed == state)
        return;
    const auto writeTo = [&](const fs::path& path) {
        m_files.write(path, json::serialized(changed), Privacy::ownerOnly);
    };
    if (losesServers)
        m_files.replaceTrashing(file, writeTo);
    else
        writeTo(file);
}

} // namespace selvane
