// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "store/conversations/SessionStates.h"

#include <unordered_set>

#include "store/ProfileStore.h"
#include "store/SessionHandover.h"

namespace selvane {

namespace fs = std::filesystem;

std::vector<SessionState> sessionStates(const ProfileStore& store, const std::vector<CodeSession>& sessions,
                                        const Profile& source, const Profile& target) {
    const FileManager files;
    std::unordered_set<std::string> records; // names of files
    std::vector<fs::path> folders = store.sessionFolders(store.desktopDataDir(target), Unreadable::leftOut);
    folders.push_back(target.configDir / kSessionQueue);
    for (const fs::path& folder : folders) {
        for (std::string& name : files.entriesIfReadable(folder))
            records.insert(std::move(name));
    }
    const TranscriptIndex transcripts = store.transcripts(source);
    std::vector<SessionState> states;
    states.reserve(sessions.size());
    for (const CodeSession& session : sessions) {
        SessionState& state = states.emplace_back();
        state.isInTarget = records.contains(fs::path(session.file).filename().native());
        for (const std::string& id : session.cliSessionIDs) {
            std::error_code missing;
            const auto folder = transcripts.transcriptFolder(id);
            const auto size = folder ? fs::file_size(*folder / (id + ".jsonl"), missing) : 0;
            state.size += missing ? 0 : static_cast<std::int64_t>(size);
        }
    }
    return states;
}

} // namespace selvane
