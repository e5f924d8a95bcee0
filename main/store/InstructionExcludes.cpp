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
constexpr std::string_view kPatternCharacters = "*?[]{}()|!";
constexpr std::string_view kUnresolved = "*?[]{}()|!\\"; ///< after these, links in an entry aren't resolved

fs::path pathIn(const fs::path& builtIn, Component component) {
    return builtIn / location(component);
}

/// A pattern for everything in `folder`. Its own special characters become "?", as patterns have no escapes.
/// A backslash is none: Claude Code takes it for "/", in patterns as in paths.
std::string everythingIn(const fs::path& folder) {
    std::string pattern = folder.string();
    std::replace_if(
        pattern.begin(), pattern.end(),
        [](char byte) { return kPatternCharacters.find(byte) != std::string::npos; }, '?');
    return pattern.append(kEverything);
}

bool holdsAny(std::string_view text, std::string_view characters) {
    return text.find_first_of(characters) != text.npos;
}

/// The folder of an entry that ends in "/**", or the path that the entry is.
std::string_view entryPlace(std::string_view entry) {
    return entry.ends_with(kEverything) ? entry.substr(0, entry.size() - kEverything.size()) : entry;
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
        if (!isUtf8(entry.native())) // Claude Code can't open it
            return;
        if (leadsToFolder(entry)) {
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

/// All of `of` that is spelled below `builtIn`.
InstructionExcludes excludesBelow(const fs::path& builtIn, const Instructions& taken) {
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

/// Whether `excludesBelow` makes such an entry.
bool isExcludeBelow(std::string_view entry, const fs::path& builtIn) {
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
    if (below.ends_with(kEverything))
        return !holdsAny(entryPlace(below), "*[]{}()|!");
    // A rule's own name may hold such characters; otherwise they make a pattern of the user's.
    return Instructions::isRule(below) &&
           (!holdsAny(below, kPatternCharacters) || FileManager().isPresent(fs::path(entry)));
}

} // namespace

InstructionExcludes InstructionExcludes::of(const fs::path& builtIn, const Instructions& taken) {
    InstructionExcludes result = excludesBelow(builtIn, taken);
    const fs::path resolved = resolvedAsFarAsPossible(builtIn);
    if (resolved == builtIn)
        return result;
    // Claude Code compares resolved paths. It resolves the links in an entry itself, but only as far as a
    // special character, and takes those that come with a link's target for a pattern's.
    for (const std::string& entry : excludesBelow(resolved, taken).entries) {
        if (holdsAny(builtIn.native(), kUnresolved) || holdsAny(entryPlace(entry), kUnresolved))
            result.entries.push_back(entry);
    }
    return result;
}

bool isInstructionExclude(std::string_view entry, const fs::path& builtIn) {
    return isExcludeBelow(entry, builtIn) || isExcludeBelow(entry, resolvedAsFarAsPossible(builtIn));
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
