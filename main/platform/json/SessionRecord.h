// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace selvane {

/// The fields of a session record that Selvane reads; those missing or of another type are absent.
struct SessionRecord {
    std::string sessionId;
    std::optional<std::string> title;
    std::optional<std::string> cwd;
    std::optional<double> lastActivityAt; ///< milliseconds since 1970
    bool isArchived = false;
    std::optional<std::string> cliSessionId;
    std::vector<std::string> priorCliSessionIds; ///< empty unless all elements are strings
};

/// Whether `text` is strictly valid JSON; fast. Also false for some things that `json::parse` accepts: lone
/// surrogates, numbers too large to represent, a byte order mark.
bool isStrictJson(std::string_view text);

/// Reads session records quickly. One reader can read many files and reuses its memory.
class SessionRecordReader {
public:
    SessionRecordReader();
    ~SessionRecordReader();
    SessionRecordReader(const SessionRecordReader&) = delete;
    SessionRecordReader& operator=(const SessionRecordReader&) = delete;

    /// Nothing if the file can't be read, isn't a JSON object, or has no string under "sessionId".
    std::optional<SessionRecord> read(const std::string& file);

private:
    void* m_state;
};

} // namespace selvane
