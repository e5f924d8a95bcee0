// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <cstdint>

/// The system libraries that would make every start slower (ICU, GIO, simdjson, XCB) are linked to a module
/// of their own, `libselvane-services.so`, which is loaded when one of them is first needed. Its border is
/// this table of plain functions: plain types only, and no exception crosses it.
namespace selvane {

/// Receives bytes; `context` is the caller's own.
using ByteSink = void (*)(void* context, const char* bytes, std::size_t count);

/// Where a desktop entry points. `arguments` are the words of its command line, field codes dropped, each
/// ended by a NUL; the first one is the program.
struct DesktopEntryView {
    const char* file;
    const char* arguments;
    std::size_t argumentsSize;
    const char* workingFolder; ///< null when it names none
};

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

    /// 0, or an errno value with the system's message in `message`.
    int (*trash)(const char* path, ByteSink message, void* context);
    /// Whether a desktop entry of that id (without ".desktop") is installed; hands it to `found` if so.
    bool (*desktopEntry)(const char* id, void (*found)(void* context, const DesktopEntryView& entry),
                         void* context);
    /// Raises a window of that process on an X11 display; false when there is none.
    bool (*raiseWindow)(std::int32_t pid);

    void* (*newSessionReader)();
    void (*deleteSessionReader)(void* reader);
    /// Whether the file is a readable JSON object with a text under "sessionId"; if so, its known fields go
    /// to the sink.
    bool (*readSession)(void* reader, const char* file, const SessionRecordSink& sink);
};

/// The module's table. Loads the module at the first call; throws `LauncherError` when it is not there.
const Services& services();

} // namespace selvane
