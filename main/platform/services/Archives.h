// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>

#include "platform/services/Services.h"

/// What the core uses of libarchive. It brings so many libraries of its own that it has a module to itself:
/// only what reads an archive loads it. The rules for the border are those of Services.h.
namespace selvane {

/// What an archive says about one entry.
struct ArchivedEntry {
    enum class Kind : int { file, folder, link, other };
    const char* name; ///< its bytes as stored, ended by NUL
    Kind kind;
    std::uint64_t size;    ///< bytes, unpacked; of a link's text
    const char* target;    ///< a link's text, ended by NUL; null for anything else
    std::uint32_t mode;    ///< permission, set-id and sticky bits
    std::int64_t modified; ///< seconds since 1970
};

/// Receives an entry, which is valid only during the call.
using ArchivedEntrySink = void (*)(void* context, const ArchivedEntry& entry) noexcept;

struct Archives {
    /// Reads a zip archive through an open file, which must stay open; null without memory.
    void* (*newReader)(int file) noexcept;
    void (*deleteReader)(void* reader) noexcept;

    enum class Step : int { entry, end, failure };
    /// Passes the next entry to the sink, if there is one.
    Step (*next)(void* reader, ArchivedEntrySink sink, void* context) noexcept;
    /// Passes on the content of the current entry. False if it doesn't match its checksum or size, or can't
    /// be read.
    bool (*read)(void* reader, ByteSink sink, void* context) noexcept;
};

/// The table. If there is a module, the first call loads it, and throws `LauncherError` if it is missing.
const Archives& archives();

} // namespace selvane
