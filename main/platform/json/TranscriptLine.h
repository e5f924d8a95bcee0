// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/services/Services.h"

namespace selvane {

/// What Selvane reads in one line of a transcript; what is missing or of another type is absent.
struct TranscriptLine {
    std::optional<std::string> cwd;
    std::optional<double> time;       ///< of its "timestamp", in seconds since 1970
    std::optional<std::string> title; ///< of a "custom-title" or "summary" line
    std::vector<std::string> words;   ///< the texts of a message, of the user or the agent
    bool isUser = false;              ///< whether the words are the user's
};

/// Reads the lines of transcripts quickly. One reader can read many lines and reuses its memory.
class TranscriptLineReader {
public:
    TranscriptLineReader();
    ~TranscriptLineReader();
    TranscriptLineReader(const TranscriptLineReader&) = delete;
    TranscriptLineReader& operator=(const TranscriptLineReader&) = delete;

    /// Nothing if the line isn't a JSON object. `kJsonPadding` readable bytes must follow it.
    std::optional<TranscriptLine> read(std::string_view line);

private:
    void* m_state;
};

} // namespace selvane
