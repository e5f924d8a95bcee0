// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/json/TranscriptLine.h"

namespace selvane {

/// What the two ends of a transcript tell about it.
struct TranscriptSummary {
    std::string title; ///< given, else the user's first words; empty if there are none
    bool hasGivenTitle = false;
    std::string cwd; ///< empty if unknown
    double lastActivity =
        0;                 ///< seconds since 1970: of the last line that says, else when the file was changed
    std::int64_t size = 0; ///< bytes
};

/// Reads transcripts, however large, at both ends only. One can read many and reuses its memory.
class TranscriptEnds {
public:
    static constexpr std::size_t kEnd = 65536; ///< bytes that are read of each end, at most

    /// Nothing if it isn't a file that can be read. Damaged lines are skipped.
    std::optional<TranscriptSummary> read(const std::string& file);

private:
    void readHead(std::string_view head, TranscriptSummary& summary);
    void splitLines(std::string_view text);
    void takeLastTitle(TranscriptSummary& summary);
    void readTail(TranscriptSummary& summary);

    TranscriptLineReader m_lines;
    std::vector<char> m_buffer;
    std::vector<std::string_view> m_split; ///< the lines of an end, in the buffer
};

} // namespace selvane
