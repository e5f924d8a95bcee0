// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT
//
// Session records that wait for the profile's account to be closed.

#include <algorithm>

#include "platform/files/FileBatch.h"
#include "store/ProfileStore.h"
#include "store/SessionHandover.h"

namespace selvane {
namespace {

namespace fs = std::filesystem;

/// A note about a record, or what an interrupted run has left.
bool isNoRecord(const std::string& name) {
    return name.starts_with('.');
}

} // namespace

int ProfileStore::pendingSessionCount(const Profile& profile) const {
    const auto queued = queuedSessions(profile);
    return static_cast<int>(
        queued.size() - static_cast<std::size_t>(std::count_if(queued.begin(), queued.end(), isNoRecord)));
}

/// The names in the queue; none if it is a link, which leads to what isn't the profile's.
std::vector<std::string> ProfileStore::queuedSessions(const Profile& profile) const {
    const fs::path queue = profile.configDir / kSessionQueue;
    return m_files.isFolder(queue) ? m_files.entriesIfPresent(queue) : std::vector<std::string>();
}

/// Where a queued record goes: to the organisation folder that was chosen for it, or else to the usual one.
fs::path ProfileStore::queuedPlace(const fs::path& queue, const std::string& name, const fs::path& data,
                                   const fs::path& usual) const {
    const auto chosen = m_files.readIfPossible(queue / placeNoteFor(name), FileManager::kLongestRecord);
    if (chosen) {
        for (const fs::path& folder : sessionFolders(data, Unreadable::fails)) {
            if (folder.lexically_relative(data) == *chosen && !m_files.linkBelow(data, folder))
                return folder / name;
        }
    }
    return usual / name;
}

int ProfileStore::flushPendingSessions(const Profile& profile) {
    const FolderLock lock = locked(profile);
    const fs::path queue = profile.configDir / kSessionQueue;
    const std::vector<std::string> queued = queuedSessions(profile);
    if (queued.empty())
        return 0;
    const fs::path data = desktopDataDir(profile);
    if (desktopDataInUse(data))
        return 0;
    const std::optional<fs::path> folder = sessionPlace(data);
    if (!folder)
        return 0;
    const FolderLock placeLock(*folder);
    FileBatch batch(profile.configDir, m_progress);
    int placed = 0;
    for (const std::string& name : queued) {
        const fs::path place = isNoRecord(name) ? fs::path() : queuedPlace(queue, name, data, *folder);
        const bool isLeftover = name.starts_with(FileManager::kTemporaryPrefix);
        const bool isPlaced = !isNoRecord(name) && m_files.exists(place);
        if ((isLeftover || isPlaced) && m_files.isRegularFile(queue / name))
            m_files.removeFile(queue / name);
        if (isNoRecord(name) || isPlaced)
            continue;
        batch.move(queue / name, place);
        ++placed;
    }
    batch.finish();
    for (const std::string& name : queued) { // no longer needed
        if (isPlaceNote(name) && m_files.isRegularFile(queue / name))
            m_files.removeFile(queue / name);
    }
    m_files.removeEmptyFolder(queue);
    return placed;
}

} // namespace selvane
