// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

#include "model/CodeSession.h"

namespace selvane {

/// Where the transcripts of one configuration folder lie, read once: looking a session up costs no file
/// access.
class TranscriptIndex {
public:
    /// Reads `configDir`/projects; what can't be read counts as empty.
    explicit TranscriptIndex(const std::filesystem::path& configDir);

    /// The project folder that holds the transcript of a Claude Code session: the first in listing order.
    std::optional<std::filesystem::path> transcriptFolder(const std::string& cliSessionID) const;
    /// Whether any of the session's transcripts is there.
    bool hasTranscript(const CodeSession& session) const;

private:
    std::vector<std::filesystem::path> m_folders;
    std::unordered_map<std::string, std::size_t> m_folderOfSession;
};

} // namespace selvane
