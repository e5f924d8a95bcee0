// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <cstdint>

/// What the core uses of libraries that are slow to load (ICU, simdjson). Where they would slow down every
/// start they are in a module of their own. Only plain types cross its border, and no exception does, in
/// either direction: all functions and callbacks are `noexcept` (see Received.h).
namespace selvane {

/// Receives bytes; `context` belongs to the caller.
using ByteSink = void (*)(void* context, const char* bytes, std::size_t count) noexcept;

/// The field of a session record that a text belongs to.
enum class SessionField : int { sessionId, title, cwd, cliSessionId, priorCliSessionId };

struct SessionRecordSink {
    void* context;
    void (*text)(void* context, SessionField field, const char* bytes, std::size_t count) noexcept;
    void (*lastActivity)(void* context, double milliseconds) noexcept;
    void (*archived)(void* context) noexcept;
};

/// What a text in a line of a transcript is. A title comes from a line of its own; words are what was written
/// in a message, without what tools were told or have answered.
enum class TranscriptField : int { cwd, timestamp, title, userWords, agentWords };

struct TranscriptSink {
    void* context;
    void (*text)(void* context, TranscriptField field, const char* bytes, std::size_t count) noexcept;
};

/// So many readable bytes follow a text that is parsed in place.
inline constexpr std::size_t kJsonPadding = 64;

struct Services {
    /// Writes a key whose byte order is the Italian order of names, ignoring case.
    void (*sortKey)(const char* name, std::size_t size, ByteSink sink, void* context) noexcept;
    /// `text::folded`.
    void (*fold)(const char* name, std::size_t size, ByteSink sink, void* context) noexcept;
    /// `text::searchable`.
    void (*searchable)(const char* text, std::size_t size, ByteSink sink, void* context) noexcept;
    /// `text::longDate`; seconds since 1970.
    void (*longDate)(std::int64_t time, ByteSink sink, void* context) noexcept;
    /// `text::relativeDate`.
    void (*relativeDate)(std::int64_t secondsAgo, ByteSink sink, void* context) noexcept;

    void* (*newSessionReader)() noexcept;
    void (*deleteSessionReader)(void* reader) noexcept;
    /// Whether the file is a readable JSON object with a string under "sessionId". If so, passes its known
    /// fields to the sink.
    bool (*readSession)(void* reader, const char* file, const SessionRecordSink& sink) noexcept;

    void* (*newTranscriptReader)() noexcept;
    void (*deleteTranscriptReader)(void* reader) noexcept;
    /// Whether a line is a JSON object. If so, passes what is known in it to the sink. `kJsonPadding` bytes
    /// must follow the line.
    bool (*readTranscriptLine)(void* reader, const char* line, std::size_t size,
                               const TranscriptSink& sink) noexcept;
    /// `isStrictJson`.
    bool (*isStrictJson)(const char* bytes, std::size_t size) noexcept;
};

/// The table. If there is a module, the first call loads it, and throws `LauncherError` if it is missing.
const Services& services();

} // namespace selvane
