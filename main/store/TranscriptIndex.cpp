// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "store/TranscriptIndex.h"

#include <algorithm>

namespace selvane {

TranscriptIndex::TranscriptIndex(const std::filesystem::path& configDir, Unreadable unreadable) {
    constexpr std::string_view kExtension = ".jsonl";
    const FileManager files;
    const std::filesystem::path projects = configDir / "projects";
    for (const std::string& project : files.entriesIfPresent(projects, unreadable)) {
        for (const std::string& name : files.entriesIfPresent(projects / project, unreadable)) {
            if (name.ends_with(kExtension))
                m_folderOfSession.emplace(name.substr(0, name.size() - kExtension.size()), m_folders.size());
        }
        m_folders.push_back(projects / project);
    }
}

const std::filesystem::path* TranscriptIndex::transcriptFolder(const std::string& cliSessionID) const {
    const auto entry = m_folderOfSession.find(cliSessionID);
    return entry == m_folderOfSession.end() ? nullptr : &m_folders[entry->second];
}

bool TranscriptIndex::hasTranscript(const CodeSession& session) const {
    return std::any_of(session.cliSessionIDs.begin(), session.cliSessionIDs.end(),
                       [this](const std::string& id) { return m_folderOfSession.contains(id); });
}

} // namespace selvane
