// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "store/Reversal.h"

#include <algorithm>

#include "model/LauncherError.h"
#include "platform/text/Text.h"
#include "store/JsonUpdate.h"
#include "store/ProfileStore.h"
#include "store/ServerImport.h"

/// Taking back what an operation has removed or replaced.
namespace selvane {
namespace {

namespace fs = std::filesystem;

LauncherError changedMeanwhile(const Profile& profile) {
    return LauncherError("Il profilo \"" + text::singleLine(profile.meta.name) +
                         "\" è cambiato nel frattempo e resta com'è");
}

/// Takes back in `now` what differs between `before` and `after`; false if that has changed since.
template <typename Value>
bool takeBackEntries(std::map<std::string, Value>& now, const std::map<std::string, Value>& before,
                     const std::map<std::string, Value>& after) {
    const auto valueIn = [](const auto& entries, const std::string& key) {
        const auto found = entries.find(key);
        return found == entries.end() ? std::nullopt : std::optional(found->second);
    };
    for (const Component component : kComponents) {
        const std::string key(rawValue(component));
        const auto old = valueIn(before, key);
        const auto made = valueIn(after, key);
        if (old == made)
            continue;
        if (valueIn(now, key) != made)
            return false;
        if (old)
            now[key] = *old;
        else
            now.erase(key);
    }
    return true;
}

/// How a record is without what the operation has changed in it; nothing if that has changed since. The rest,
/// such as the profile's name, stays as it is now.
std::optional<ProfileMeta> takenBack(const Reversal::Record& record, ProfileMeta now) {
    if (takeBackEntries(now.modes, record.before.modes, record.after.modes) &&
        takeBackEntries(now.excluded, record.before.excluded, record.after.excluded) &&
        takeBackEntries(now.keptOwn, record.before.keptOwn, record.after.keptOwn))
        return now;
    return std::nullopt;
}

/// Nothing if the servers have changed since.
std::optional<Json> takenBack(const Reversal::Servers& servers, Json state) {
    const Json* now = json::find(state, kServersKey);
    if (now == nullptr || *now != servers.after)
        return std::nullopt;
    if (servers.before)
        json::set(state, kServersKey, *servers.before);
    else
        state.erase(std::string(kServersKey));
    return state;
}

} // namespace

/// Locks all profiles that an operation has changed, in the one order in which they are always locked.
std::vector<FolderLock> ProfileStore::lockedFor(const Reversal& reversal) {
    std::vector<FolderLock> locks;
    if (reversal.isDeletion) {
        locks.emplace_back(root(), m_progress); // as for a new one
        return locks;
    }
    std::map<fs::path, Profile> profiles;
    for (const Profile& profile : reversal.profiles)
        profiles.emplace(profile.configDir, profile);
    for (const auto& [folder, profile] : profiles)
        locks.push_back(locked(profile));
    return locks;
}

void ProfileStore::takeBack(const Reversal& reversal) {
    const auto locks = lockedFor(reversal);
    if (reversal.isDeletion)
        return takeBackDeletion(reversal);
    std::vector<Profile> changed;
    for (const Reversal::Record& record : reversal.records) {
        Profile profile = current(record.profile);
        auto meta = takenBack(record, profile.meta);
        if (!meta)
            throw changedMeanwhile(profile);
        profile.meta = std::move(*meta);
        changed.push_back(std::move(profile));
    }
    // Files first: as long as the record says what was done, what is left of an interrupted run is visible.
    reversal.files.undo(m_progress);
    if (reversal.servers)
        takeBackServers(*reversal.servers);
    for (const Profile& profile : changed) {
        saveMeta(profile);
        writeProfileNote(profile);
    }
    for (const Profile& profile : reversal.profiles)
        updateExcludes(current(profile));
}

void ProfileStore::takeBackDeletion(const Reversal& reversal) {
    const Profile& profile = reversal.profiles.front();
    const auto requireProfile = [&](const std::optional<std::string>& id, const std::string& role) {
        if (id && *id != profile.id && !this->profile(*id))
            throw LauncherError("Il profilo da cui \"" + text::singleLine(profile.meta.name) + "\" " + role +
                                " non c'è più: resta nel Cestino");
    };
    requireProfile(profile.meta.source, "eredita");
    requireProfile(profile.meta.account, "prende l'account");
    if (desktopDataInUse(desktopFolder(profile.id)))
        throw LauncherError("L'account di \"" + text::singleLine(profile.meta.name) +
                            "\" è aperto in Claude: chiudilo prima");
    reversal.files.undo(m_progress); // the account's data first: the profile is back when it is complete
}

void ProfileStore::takeBackServers(const Reversal::Servers& servers) {
    if (!servers.created || !m_files.removeIfUnchanged(servers.file, *servers.created)) {
        updateJson(servers.file, [&](const JsonState& state) {
            auto before = takenBack(servers, state.object);
            if (!before)
                throw LauncherError("I server MCP sono cambiati nel frattempo e restano come sono");
            return before;
        });
    }
    if (servers.copy)
        removeFromTrash(*servers.copy);
}

} // namespace selvane
