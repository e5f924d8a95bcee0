// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "store/ProfileStore.h"

#include <algorithm>
#include <functional>
#include <future>
#include <iterator>
#include <limits>
#include <span>

#include "model/LauncherError.h"
#include "platform/files/FileBatch.h"
#include "platform/json/SessionRecord.h"
#include "store/OwnFolder.h"
#include "store/SessionHandover.h"
#include "store/conversations/TranscriptCopies.h"

namespace selvane {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view kSessionsFolder = "claude-code-sessions";
constexpr auto kAnyLaunch = std::launch::async | std::launch::deferred;

bool isHidden(const std::string& name) {
    return name.starts_with('.');
}

std::optional<CodeSession> parseSession(const std::string& file, SessionRecordReader& reader) {
    auto record = reader.read(file);
    if (!record || record->isArchived)
        return std::nullopt;
    CodeSession session{.id = std::move(record->sessionId),
                        .title = record->title.value_or("Senza titolo"),
                        .cwd = record->cwd.value_or(""),
                        .lastActivity = std::nullopt,
                        .cliSessionIDs = {},
                        .file = file};
    if (record->lastActivityAt)
        session.lastActivity = *record->lastActivityAt / 1000.0;
    if (record->cliSessionId)
        session.cliSessionIDs.push_back(std::move(*record->cliSessionId));
    std::move(record->priorCliSessionIds.begin(), record->priorCliSessionIds.end(),
              std::back_inserter(session.cliSessionIDs));
    return session;
}

/// The sessions in these files of a folder.
std::vector<CodeSession> parsedSessions(const fs::path& folder, std::span<const std::string> names,
                                        Unreadable unreadable) {
    std::vector<CodeSession> sessions;
    SessionRecordReader reader;
    for (const std::string& name : names) {
        const std::string file = folder.native() + "/" + name;
        auto session = parseSession(file, reader);
        // If it couldn't be read, this throws, or it can be read now.
        if (!session && unreadable == Unreadable::fails && FileManager().readIfPresent(file))
            session = parseSession(file, reader);
        if (session)
            sessions.push_back(std::move(*session));
    }
    return sessions;
}

/// Adds the sessions in these files. Parsing is what takes the time, so another thread helps.
void addSessions(const fs::path& folder, std::span<const std::string> names, Unreadable unreadable,
                 std::vector<CodeSession>& sessions) {
    constexpr std::size_t kAtATime = 1024; // so that memory isn't needed twice
    constexpr std::size_t kFew = 128;
    for (; !names.empty(); names = names.subspan(std::min(kAtATime, names.size()))) {
        const auto some = names.first(std::min(kAtATime, names.size()));
        const auto half = some.size() < kFew ? some.size() : some.size() / 2;
        auto others = std::async(some.size() < kFew ? std::launch::deferred : kAnyLaunch, parsedSessions,
                                 folder, some.subspan(half), unreadable);
        const auto append = [&](std::vector<CodeSession> parsed) {
            std::move(parsed.begin(), parsed.end(), std::back_inserter(sessions));
        };
        append(parsedSessions(folder, some.first(half), unreadable));
        append(others.get());
    }
}

} // namespace

std::vector<fs::path> ProfileStore::sessionFolders(const fs::path& dataDir, Unreadable unreadable) const {
    std::vector<std::pair<fs::file_time_type, fs::path>> dated;
    const fs::path top = dataDir / kSessionsFolder;
    for (const std::string& account : m_files.entriesIfPresent(top, unreadable)) {
        if (isHidden(account))
            continue;
        for (const std::string& organisation : m_files.entriesIfPresent(top / account, unreadable)) {
            const fs::path folder = top / account / organisation;
            try {
                if (!isHidden(organisation) && m_files.isFolder(folder))
                    dated.emplace_back(fs::last_write_time(folder), folder);
            } catch (const fs::filesystem_error&) {
                if (unreadable == Unreadable::fails)
                    throw;
            }
        }
    }
    std::stable_sort(dated.begin(), dated.end(),
                     [](const auto& a, const auto& b) { return a.first > b.first; });
    std::vector<fs::path> folders;
    for (auto& [date, folder] : dated)
        folders.push_back(std::move(folder));
    return folders;
}

std::vector<fs::path> ProfileStore::listedPlaces(const Profile& profile) const {
    std::vector<fs::path> places = {profile.configDir, profile.configDir / kSessionQueue};
    if (!m_files.isFolder(profile.configDir))
        places.push_back(profile.configDir.parent_path());
    for (const Component component : kComponents)
        places.push_back(profile.url(component));
    try {
        const fs::path top = desktopDataDir(profile) / kSessionsFolder;
        places.push_back(top);
        for (const fs::path& folder : sessionFolders(desktopDataDir(profile), Unreadable::leftOut))
            places.insert(places.end(), {folder.parent_path(), folder});
    } catch (const LauncherError&) { // an invalid account has no sessions
    }
    return places;
}

std::vector<CodeSession> ProfileStore::codeSessions(const Profile& profile, Unreadable unreadable) const {
    std::vector<CodeSession> sessions;
    for (const fs::path& folder : sessionFolders(desktopDataDir(profile), unreadable)) {
        std::vector<std::string> names = m_files.entriesIfPresent(folder, unreadable);
        std::erase_if(names, std::not_fn(isSessionRecord));
        sessions.reserve(sessions.size() + names.size());
        addSessions(folder, names, unreadable, sessions);
    }
    const auto activity = [](const CodeSession& session) {
        return session.lastActivity.value_or(-std::numeric_limits<double>::infinity());
    };
    // Not a stable sort, which takes memory for as many again; the paths decide between equals.
    std::sort(sessions.begin(), sessions.end(), [&](const CodeSession& a, const CodeSession& b) {
        return activity(a) != activity(b) ? activity(a) > activity(b) : a.file < b.file;
    });
    return sessions;
}

TranscriptIndex ProfileStore::transcripts(const Profile& profile, Unreadable unreadable) const {
    return TranscriptIndex(profile.configDir, unreadable);
}

/// The folder for new session records: the most recently changed one that no link leads to, if there is any.
std::optional<fs::path> ProfileStore::sessionPlace(const fs::path& dataDir) const {
    for (const fs::path& folder : sessionFolders(dataDir, Unreadable::fails)) {
        if (!m_files.linkBelow(dataDir, folder))
            return folder;
    }
    return std::nullopt;
}

/// The transcript of one of the agent's sessions, with its companion folder, from a project folder.
void ProfileStore::copyTranscript(const std::string& cliSessionID, const fs::path& folder, OwnFolders& target,
                                  Existing existing, FileBatch& batch) {
    const fs::path place = target.profile().configDir / "projects" / folder.filename();
    target.create(place);
    for (const TranscriptCopy& copy : transcriptCopies(cliSessionID, folder, place, existing)) {
        target.create(copy.to.parent_path());
        if (copy.kind == TranscriptCopy::Kind::added)
            batch.copy(copy.from, copy.to);
        else if (copy.kind == TranscriptCopy::Kind::continued)
            m_files.replaceTrashing(copy.to,
                                    [&](const fs::path& temporary) { m_files.copy(copy.from, temporary); });
    }
}

int ProfileStore::importTranscripts(const std::vector<std::string>& cliSessionIDs, const Profile& source,
                                    const Profile& target, Existing existing) {
    const FolderLock lock = locked(target);
    const TranscriptIndex index = transcripts(source, Unreadable::fails);
    std::vector<std::pair<std::string, fs::path>> found;
    for (const std::string& id : std::set<std::string>(cliSessionIDs.begin(), cliSessionIDs.end())) {
        const fs::path* const folder = index.transcriptFolder(id);
        if (!folder)
            continue;
        found.emplace_back(id, *folder);
        announce(*folder / (id + ".jsonl"));
        announce(*folder / id);
    }
    FileBatch batch(target.configDir, m_progress);
    OwnFolders folders(target);
    if (source.configDir != target.configDir) {
        for (const auto& [id, folder] : found)
            copyTranscript(id, folder, folders, existing, batch);
    }
    batch.finish();
    return static_cast<int>(found.size());
}

ImportCount ProfileStore::importSessions(const std::vector<CodeSession>& sessions, const Profile& source,
                                         const Profile& target, Existing existing) {
    const FolderLock lock = locked(target);
    const bool sameAccount = source.accountOwner() == target.accountOwner();
    const bool sameConfiguration = source.configDir == target.configDir;
    const fs::path data = desktopDataDir(target);
    const std::optional<fs::path> open = sessionPlace(data);
    const bool canPlace = open && !desktopDataInUse(data);
    const fs::path destination = canPlace ? *open : target.configDir / kSessionQueue;
    // Another profile with the same account may get sessions at the same time.
    const FolderLock placeLock = canPlace ? FolderLock(destination) : FolderLock(fs::path());
    const TranscriptIndex index = transcripts(source, Unreadable::fails);

    const auto announceAll = [&](const CodeSession& session) {
        if (!sameAccount)
            announce(session.file);
        for (const std::string& id : session.cliSessionIDs) {
            if (const fs::path* const folder = sameConfiguration ? nullptr : index.transcriptFolder(id)) {
                announce(*folder / (id + ".jsonl"));
                announce(*folder / id);
            }
        }
    };
    if (m_progress != nullptr)
        std::for_each(sessions.begin(), sessions.end(), announceAll);
    FileBatch batch(target.configDir, m_progress);
    OwnFolders folders(target);
    std::set<std::string> knownTranscripts;
    std::set<std::string> knownRecords;
    ImportCount count;
    const auto import = [&](const CodeSession& session) {
        for (const std::string& id : session.cliSessionIDs) {
            const fs::path* const folder = sameConfiguration ? nullptr : index.transcriptFolder(id);
            if (folder && knownTranscripts.insert(id).second)
                copyTranscript(id, *folder, folders, existing, batch);
        }
        if (sameAccount) { // both profiles already read this record
            ++count.copied;
            return;
        }
        const fs::path place = destination / fs::path(session.file).filename();
        if (!canPlace && knownRecords.empty())
            createOwnFolder(target, destination);
        // Two of the source's folders can have a record of one name; the first, the newest, counts.
        const bool isFirst = knownRecords.insert(place.filename()).second;
        if (isFirst && (!canPlace || !m_files.exists(place)))
            batch.write(
                place, [this, file = session.file] { return withoutAccount(m_files.read(file), file); },
                Privacy::ownerOnly);
        ++(canPlace ? count.copied : count.pending);
    };
    try {
        std::for_each(sessions.begin(), sessions.end(), import);
    } catch (const std::exception&) {
        try {
            batch.finish();               // the sessions before the failure stay
        } catch (const std::exception&) { // report the first error
        }
        throw;
    }
    batch.finish();
    return count;
}

} // namespace selvane
