// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "store/ProfileStore.h"

#include "model/LauncherError.h"
#include "platform/files/Locations.h"
#include "platform/files/NormalizedPath.h"
#include "platform/files/Progress.h"
#include "platform/text/Text.h"
#include "store/ProfileRecord.h"

namespace selvane {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view kDefaultName = "Principale";
constexpr std::string_view kDefaultSummary = "La configurazione standard di Claude (~/.claude)";
constexpr std::string_view kDefaultSymbol = "house";
constexpr std::string_view kDefaultMetaFileName = "default.json";
constexpr std::string_view kActiveFileName = ".active";

/// Links and logins are tied to the spelling.
fs::path location(const Environment& environment, const std::string& variable, const fs::path& standard) {
    const auto entry = environment.find(variable);
    return normalizedPath(entry == environment.end() || entry->second.empty() ? standard
                                                                              : fs::path(entry->second));
}

} // namespace

ProfileStore::ProfileStore(const Environment& environment, const ClaudeApp& claude)
    : m_claude(claude), m_environment(environment), m_home(normalizedPath(homeFolder(environment))),
      m_root(location(environment, "CLAUDE_LAUNCHER_ROOT", m_home / ".claude-profiles")),
      m_defaultDir(location(environment, "CLAUDE_LAUNCHER_DEFAULT_DIR", m_home / ".claude")),
      m_defaultGlobalJSON(location(environment, "CLAUDE_LAUNCHER_DEFAULT_JSON", m_home / ".claude.json")),
      m_testMode(environment.contains("CLAUDE_LAUNCHER_DESKTOP_DIR")) {
    try {
        m_files.createFolders(m_root, Privacy::ownerOnly);
    } catch (const fs::filesystem_error&) { // operations that need the root report it themselves
    }
}

ProfileStore::ProfileStore(const ProfileStore& other, Progress& progress)
    : m_progress(&progress), m_files(&progress), m_claude(other.m_claude), m_environment(other.m_environment),
      m_home(other.m_home), m_root(other.m_root), m_defaultDir(other.m_defaultDir),
      m_defaultGlobalJSON(other.m_defaultGlobalJSON), m_testMode(other.m_testMode) {}

fs::path ProfileStore::liveDesktopDir() const {
    const std::lock_guard guard(m_liveDesktopDirMutex);
    if (!m_liveDesktopDir.empty())
        return m_liveDesktopDir;
    const auto entry = m_environment.find("CLAUDE_LAUNCHER_DESKTOP_DIR");
    if (entry != m_environment.end() && !entry->second.empty())
        return m_liveDesktopDir = normalizedPath(entry->second);
    bool isSettled = true; // installing the application can still change it
    const auto isInstalled = [&] { return isSettled = m_claude.application().has_value(); };
    fs::path folder = normalizedPath(applicationDataFolder(m_environment, "Claude", isInstalled));
    if (isSettled)
        m_liveDesktopDir = folder;
    return folder;
}

void ProfileStore::announce(const fs::path& tree) const {
    if (m_progress != nullptr)
        m_progress->expect(tree);
}

fs::path ProfileStore::globalJSON(const Profile& profile) const {
    return profile.url(Component::mcp);
}

Profile ProfileStore::loadDefault() const {
    ProfileMeta meta;
    meta.name = kDefaultName;
    meta.summary = kDefaultSummary;
    meta.symbol = kDefaultSymbol;
    if (const auto text = m_files.readIfPossible(m_root / kDefaultMetaFileName))
        meta = decodedProfileMeta(*text).value_or(meta);
    return {std::string(Profile::kDefaultId), meta, m_defaultDir, m_defaultGlobalJSON};
}

std::optional<Profile> ProfileStore::loadProfile(const std::string& id) const {
    if (!Profile::isPossibleId(id))
        return std::nullopt;
    const fs::path folder = m_root / id;
    const auto text = m_files.readIfPossible(folder / kMetaFileName);
    if (!text)
        return std::nullopt;
    auto meta = decodedProfileMeta(*text);
    return meta ? std::optional(Profile{id, std::move(*meta), folder}) : std::nullopt;
}

std::vector<Profile> ProfileStore::loadAll() const {
    std::vector<Profile> found;
    for (const std::string& name : m_files.entriesIfReadable(m_root)) {
        if (auto profile = loadProfile(name))
            found.push_back(std::move(*profile));
    }
    std::vector<std::string_view> names;
    for (const Profile& profile : found)
        names.push_back(profile.meta.name);

    std::vector<Profile> result = {loadDefault()};
    for (const std::size_t position : text::sortedOrder(names))
        result.push_back(std::move(found[position]));
    return result;
}

std::optional<Profile> ProfileStore::profile(std::string_view id) const {
    return id == Profile::kDefaultId ? loadDefault() : loadProfile(std::string(id));
}

std::optional<Profile> ProfileStore::sourceOf(const Profile& profile) const {
    // A record edited by hand may name the profile as its own source; that counts as none.
    if (!profile.meta.source || *profile.meta.source == profile.id)
        return std::nullopt;
    return this->profile(*profile.meta.source);
}

void ProfileStore::saveMeta(const Profile& profile) {
    const fs::path file =
        profile.isDefault() ? m_root / kDefaultMetaFileName : profile.configDir / kMetaFileName;
    m_files.write(file, encoded(profile.meta));
}

FolderLock ProfileStore::locked(const Profile& profile) const {
    FolderLock lock(profile.configDir);
    // Writing would create the folder again, with nothing else in it.
    if (!profile.isDefault() && !m_files.existsFollowingLinks(profile.configDir))
        throw LauncherError("Il profilo \"" + profile.meta.name + "\" è stato eliminato nel frattempo");
    return lock;
}

/// The profile as it is on disk now: its record may have changed since `profile` was loaded.
Profile ProfileStore::current(const Profile& profile) const {
    return this->profile(profile.id).value_or(profile);
}

Profile ProfileStore::changeMeta(const Profile& profile, const std::function<void(ProfileMeta&)>& change) {
    const FolderLock lock = locked(profile);
    Profile changed = current(profile);
    change(changed.meta);
    saveMeta(changed);
    return changed;
}

void ProfileStore::markLaunched(const Profile& profile) {
    try {
        changeMeta(profile, [](ProfileMeta& meta) { meta.lastLaunched = currentTimestamp(); });
    } catch (const std::exception&) { // a launch never fails because of its record
    }
    try {
        m_files.write(m_root / kActiveFileName, profile.id);
    } catch (const std::exception&) { // likewise
    }
}

std::optional<std::string> ProfileStore::activeID() const {
    const auto content = m_files.readIfPossible(m_root / kActiveFileName);
    return content ? std::optional(std::string(text::trimmed(*content))) : std::nullopt;
}

} // namespace selvane
