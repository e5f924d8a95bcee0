// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "store/InstructionExcludes.h"

#include <algorithm>
#include <set>

#include "model/ByteText.h"
#include "model/Component.h"
#include "model/LauncherError.h"
#include "platform/files/FileManager.h"

namespace selvane {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view kKey = "claudeMdExcludes";
constexpr std::string_view kEverything = "/**";
constexpr std::string_view kPatternCharacters = "*?[]{}()|!\\";

fs::path pathIn(const fs::path& builtIn, Component component) {
    return builtIn / location(component);
}

/// A pattern for everything in `folder`. Its own special characters become "?", as patterns have no escapes.
std::string everythingIn(const fs::path& folder) {
    std::string pattern = folder.string();
    std::replace_if(
        pattern.begin(), pattern.end(),
        [](char byte) { return kPatternCharacters.find(byte) != std::string::npos; }, '?');
    return pattern.append(kEverything);
}

class RulesWalk {
public:
    explicit RulesWalk(const Instructions& taken) : m_taken(taken) {}

    struct Found {
        std::vector<std::string> excludes;
        bool isTaken = false; ///< something of it
        bool hasMore = false; ///< something that isn't taken
    };

    Found in(const fs::path& folder) {
        Found found;
        if (m_taken.hasFolder(folder))
            return {{}, true, false};
        if (!m_listed.insert(resolvedAsFarAsPossible(folder)).second)
            return found; // a link back to where it is
        std::vector<std::string> names = FileManager().entriesIfPresent(folder);
        std::sort(names.begin(), names.end());
        for (const std::string& name : names)
            add(folder / name, found);
        if (!found.isTaken)
            found.excludes = {everythingIn(folder)};
        return found;
    }

private:
    void add(const fs::path& entry, Found& found) {
        std::error_code error;
        if (!isUtf8(entry.native())) // Claude Code can't open it
            return;
        if (fs::is_directory(entry, error)) {
            const Found below = in(entry);
            found.excludes.insert(found.excludes.end(), below.excludes.begin(), below.excludes.end());
            found.isTaken = found.isTaken || below.isTaken;
            found.hasMore = found.hasMore || below.hasMore;
        } else if (Instructions::isRule(entry.native())) {
            const bool isTaken = m_taken.hasFile(entry);
            if (!isTaken)
                found.excludes.push_back(entry.string());
            found.isTaken = found.isTaken || isTaken;
            found.hasMore = found.hasMore || !isTaken;
        }
    }

    const Instructions& m_taken;
    std::set<fs::path> m_listed;
};

} // namespace

InstructionExcludes InstructionExcludes::of(const fs::path& builtIn, const Instructions& taken) {
    InstructionExcludes result;
    if (!isUtf8(builtIn.native())) // Claude Code can't use such a folder either
        return result;
    const fs::path memory = pathIn(builtIn, Component::claudeMd);
    if (!taken.hasFile(memory)) {
        result.entries.push_back(memory.string());
        result.matchesAny = FileManager().isPresent(memory);
    }
    const RulesWalk::Found rules = RulesWalk(taken).in(pathIn(builtIn, Component::rules));
    result.entries.insert(result.entries.end(), rules.excludes.begin(), rules.excludes.end());
    result.matchesAny = result.matchesAny || rules.hasMore;
    return result;
}

bool isInstructionExclude(std::string_view entry, const fs::path& builtIn) {
    if (entry == pathIn(builtIn, Component::claudeMd).native())
        return true;
    const std::string rules = pathIn(builtIn, Component::rules).string();
    std::string pattern = everythingIn(rules);
    pattern.resize(pattern.size() - kEverything.size());
    if (!entry.starts_with(rules) && !entry.starts_with(pattern))
        return false;
    std::string_view below = entry.substr(rules.size());
    if (below == kEverything)
        return true;
    if (!below.starts_with('/'))
        return false;
    std::error_code error;
    if (below.ends_with(kEverything))
        return below.substr(0, below.size() - kEverything.size()).find_first_of("*[]{}()|!\\") == below.npos;
    // A rule's own name may hold such characters; otherwise they make a pattern of the user's.
    return Instructions::isRule(below) &&
           (below.find_first_of(kPatternCharacters) == below.npos || fs::exists(fs::path(entry), error));
}

std::optional<Json> withInstructionExcludes(const Json& settings, const std::vector<std::string>& entries,
                                            const fs::path& builtIn) {
    const Json* present = json::find(settings, kKey);
    if (present != nullptr && !present->is_array()) {
        if (!entries.empty())
            throw LauncherError("L'impostazione \"" + std::string(kKey) + "\" non è un elenco: correggila");
        return std::nullopt;
    }
    Json list = Json::array();
    std::set<std::string> missing(entries.begin(), entries.end());
    for (const Json& entry : present != nullptr ? *present : Json::array()) {
        const auto* text = entry.get_ptr<const std::string*>();
        if (text == nullptr || missing.erase(*text) > 0 || !isInstructionExclude(*text, builtIn))
            list.push_back(entry);
    }
    for (const std::string& entry : entries) {
        if (missing.contains(entry))
            list.push_back(entry);
    }
    if (list == (present != nullptr ? *present : Json::array()))
        return std::nullopt;
    Json changed = settings;
    if (list.empty())
        json::remove(changed, kKey);
    else
        json::set(changed, kKey, std::move(list));
    return changed;
}

} // namespace selvane
