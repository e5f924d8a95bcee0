// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <cstdint>

/// What libraries do for the core that are good at it and slow to load (ICU, simdjson). Plain functions, of
/// which only plain types and no exception come: where loading them at every start takes too long, they are
/// in a module of their own.
namespace selvane {

/// Receives bytes; `context` is the caller's own.
using ByteSink = void (*)(void* context, const char* bytes, std::size_t count);

/// Which field of a session record a text belongs to.
enum class SessionField : int { sessionId, title, cwd, cliSessionId, priorCliSessionId };

struct SessionRecordSink {
    void* context;
    void (*text)(void* context, SessionField field, const char* bytes, std::size_t count);
    void (*lastActivity)(void* context, double milliseconds);
    void (*archived)(void* context);
};

struct Services {
    /// Writes a key whose byte order is the Italian order of names without regard to case.
    void (*sortKey)(const char* name, std::size_t size, ByteSink sink, void* context);
    /// `text::folded`.
    void (*fold)(const char* name, std::size_t size, ByteSink sink, void* context);
    /// `text::longDate`; seconds since 1970.
    void (*longDate)(std::int64_t time, ByteSink sink, void* context);
    /// `text::relativeDate`.
    void (*relativeDate)(std::int64_t secondsAgo, ByteSink sink, void* context);

    void* (*newSessionReader)();
    void (*deleteSessionReader)(void* reader);
    /// Whether the file is a readable JSON object with a text under "sessionId"; if so, its known fields go
    /// to the sink.
    bool (*readSession)(void* reader, const char* file, const SessionRecordSink& sink);
    /// `isStrictJson`.
    bool (*isStrictJson)(const char* bytes, std::size_t size);
};

/// The table. Loads the module, where there is one, at the first call; throws `LauncherError` when it is not
/// there.
const Services& services();

} // namespace selvane
