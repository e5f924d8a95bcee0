// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <filesystem>
#include <string>
#include <unordered_map>
#include <vector>

#include "model/CodeSession.h"
#include "platform/files/FileManager.h"

namespace selvane {

/// Where a configuration folder's transcripts are. It reads the folders once, so lookups need no file access.
class TranscriptIndex {
public:
    /// Reads `configDir`/projects.
    TranscriptIndex(const std::filesystem::path& configDir, Unreadable unreadable);

    /// The project folder that holds a Claude Code session's transcript: the first one listed. Null without
    /// one.
    const std::filesystem::path* transcriptFolder(const std::string& cliSessionID) const;
    /// Calls `use` with each session and the project folder that holds its transcript, in no particular
    /// order.
    template <typename Use>
    void forEach(Use use) const {
        for (const auto& [session, folder] : m_folderOfSession)
            use(session, m_folders[folder]);
    }
    /// Whether any of the session's transcripts exists.
    bool hasTranscript(const CodeSession& session) const;

private:
    std::vector<std::filesystem::path> m_folders;
    std::unordered_map<std::string, std::size_t> m_folderOfSession;
};

} // namespace selvane
