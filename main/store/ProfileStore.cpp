// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "store/ProfileStore.h"

#include "model/LauncherError.h"
#include "platform/files/NormalizedPath.h"
#include "platform/files/Progress.h"
#include "platform/text/ErrorText.h"
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

LauncherError damaged(const fs::path& record) {
    return LauncherError(text::singleLine(record.string()) +
                         " è danneggiato: correggilo o spostalo nel Cestino");
}

} // namespace

ProfileStore::ProfileStore(const Environment& environment, const ClaudeApp& claude)
    : ProfileLocations(environment, claude) {
    try {
        m_files.createFolders(root(), Privacy::ownerOnly);
    } catch (const fs::filesystem_error&) { // operations that need the root report it themselves
    }
}

ProfileStore::ProfileStore(const ProfileStore& other, Progress* progress, Reversal* reversal)
    : ProfileLocations(other), m_progress(progress), m_reversal(reversal), m_files(progress, changes()) {}

FileChanges* ProfileStore::changes() const {
    return m_reversal == nullptr ? nullptr : &m_reversal->files;
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
    meta.look.symbol = kDefaultSymbol;
    if (const auto text = m_files.readIfPossible(root() / kDefaultMetaFileName, FileManager::kLongestRecord))
        meta = decodedProfileMeta(*text).value_or(meta);
    return {std::string(Profile::kDefaultId), meta, defaultDir(), defaultGlobalJSON()};
}

std::optional<Profile> ProfileStore::loadProfile(const std::string& id) const {
    if (!Profile::isPossibleId(id))
        return std::nullopt;
    const fs::path folder = root() / id;
    const auto text = m_files.readIfPossible(folder / kMetaFileName, FileManager::kLongestRecord);
    if (!text)
        return std::nullopt;
    auto meta = decodedProfileMeta(*text);
    return meta ? std::optional(Profile{id, std::move(*meta), folder}) : std::nullopt;
}

/// The record in `file`; nothing if there is none. Throws if it is damaged or can't be read.
std::optional<ProfileMeta> ProfileStore::readRecord(const fs::path& file) const {
    const auto text = m_files.readIfPresent(file, FileManager::kLongestRecord);
    if (!text)
        return std::nullopt;
    auto meta = decodedProfileMeta(*text);
    if (!meta)
        throw damaged(file);
    return meta;
}

/// The same, but throws if its record is damaged or can't be read, instead of taking it for missing.
std::optional<Profile> ProfileStore::validProfile(const std::string& id) const {
    if (!Profile::isPossibleId(id))
        return std::nullopt;
    Profile found{id, {}, root() / id};
    auto meta = readRecord(recordOf(found));
    if (!meta)
        return std::nullopt;
    found.meta = std::move(*meta);
    return found;
}

std::vector<Profile> ProfileStore::loadAll() const {
    std::vector<Profile> found;
    for (const std::string& name : m_files.entriesIfReadable(root())) {
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

std::vector<DamagedProfile> ProfileStore::damagedProfiles() const {
    std::vector<DamagedProfile> found;
    for (const std::string& id : text::sorted(m_files.entriesIfReadable(root()))) {
        if (!Profile::isPossibleId(id))
            continue;
        try {
            static_cast<void>(readRecord(root() / id / kMetaFileName));
        } catch (const std::exception& error) {
            found.push_back({id, root() / id, describe(error)});
        }
    }
    return found;
}

std::optional<Profile> ProfileStore::profile(std::string_view id) const {
    return id == Profile::kDefaultId ? loadDefault() : loadProfile(std::string(id));
}

std::optional<Profile> ProfileStore::sourceOf(const Profile& profile) const {
    // A record edited by hand may name the profile as its own source; that counts as none.
    if (!profile.meta.source || *profile.meta.source == profile.id)
        return std::nullopt;
    return *profile.meta.source == Profile::kDefaultId ? loadDefault() : validProfile(*profile.meta.source);
}

fs::path ProfileStore::recordOf(const Profile& profile) const {
    return profile.isDefault() ? root() / kDefaultMetaFileName : profile.configDir / kMetaFileName;
}

void ProfileStore::saveMeta(const Profile& profile) {
    const fs::path file = recordOf(profile);
    const auto before = m_files.readIfPresent(file, FileManager::kLongestRecord);
    const auto meta = before ? decodedProfileMeta(*before) : std::nullopt;
    if (before && !meta)
        throw damaged(file);
    m_files.write(file, before ? encoded(profile.meta, *before) : encoded(profile.meta));
    if (m_reversal != nullptr && meta)
        noteRecord(profile, *meta);
}

void ProfileStore::noteRecord(const Profile& profile, const ProfileMeta& before) {
    for (Reversal::Record& record : m_reversal->records) {
        if (record.profile.id == profile.id) {
            record.after = profile.meta;
            return;
        }
    }
    m_reversal->records.push_back({profile, before, profile.meta});
}

void ProfileStore::repair(const std::string& id) {
    if (!Profile::isPossibleId(id))
        throw LauncherError("Profilo sconosciuto: " + text::singleLine(id));
    const FolderLock lock(root() / id, m_progress);
    const fs::path file = root() / id / kMetaFileName;
    try {
        if (readRecord(file)) // repaired meanwhile
            return;
    } catch (const std::exception&) { // the damage to repair
    }
    ProfileMeta standard;
    standard.name = id;
    m_files.replaceTrashing(file,
                            [&](const fs::path& temporary) { m_files.write(temporary, encoded(standard)); });
}

FolderLock ProfileStore::locked(const Profile& profile) const {
    FolderLock lock(profile.configDir, m_progress);
    // Writing would create the folder again, with nothing else in it.
    if (!profile.isDefault() && !m_files.isPresent(profile.configDir))
        throw LauncherError("Il profilo \"" + profile.meta.name + "\" è stato eliminato nel frattempo");
    if (m_reversal != nullptr)
        m_reversal->profiles.push_back(profile);
    return lock;
}

/// The profile as it is on disk now: its record may have changed since `profile` was loaded. Throws if that
/// has been damaged, except for the built-in profile.
Profile ProfileStore::current(const Profile& profile) const {
    if (profile.isDefault())
        return loadDefault();
    Profile current = profile;
    current.meta = readRecord(recordOf(profile)).value_or(profile.meta);
    return current;
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
        m_files.write(root() / kActiveFileName, profile.id);
    } catch (const std::exception&) { // likewise
    }
}

std::optional<std::string> ProfileStore::activeID() const {
    const auto content = m_files.readIfPossible(root() / kActiveFileName, FileManager::kLongestRecord);
    return content ? std::optional(std::string(text::trimmed(*content))) : std::nullopt;
}

std::vector<fs::path> ProfileStore::recordPlaces() const {
    std::vector<fs::path> places = {root(), root() / kDefaultMetaFileName};
    for (const std::string& name : m_files.entriesIfReadable(root())) {
        if (const fs::path folder = root() / name; Profile::isPossibleId(name) && m_files.isFolder(folder))
            places.insert(places.end(), {folder, folder / kMetaFileName});
    }
    return places;
}

} // namespace selvane
