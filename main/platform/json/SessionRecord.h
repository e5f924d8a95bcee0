// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace selvane {

/// The fields of a session record that the program reads, absent where missing or of another type.
struct SessionRecord {
    std::string sessionId;
    std::optional<std::string> title;
    std::optional<std::string> cwd;
    std::optional<double> lastActivityAt; ///< milliseconds since 1970
    bool isArchived = false;
    std::optional<std::string> cliSessionId;
    std::vector<std::string> priorCliSessionIds; ///< empty unless all elements are texts
};

/// Whether `text` is JSON as the standard has it, told quickly. False as well for some of what `json::parse`
/// takes beyond that: halves of surrogate pairs, numbers that no machine number holds, a byte order mark.
bool isStrictJson(std::string_view text);

/// Reads session records quickly; one reader serves many files and reuses its memory.
class SessionRecordReader {
public:
    SessionRecordReader();
    ~SessionRecordReader();
    SessionRecordReader(const SessionRecordReader&) = delete;
    SessionRecordReader& operator=(const SessionRecordReader&) = delete;

    /// Nothing when the file can't be read, is no JSON object, or has no text under "sessionId".
    std::optional<SessionRecord> read(const std::string& file);

private:
    void* m_state;
};

} // namespace selvane
