// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <atomic>
#include <cstdint>

namespace selvane {

/// How far a long operation has come, for whoever watches it, and whether it is to stop. May be used from any
/// thread. An operation that was cancelled removes what it had begun and throws a `filesystem_error` whose
/// code is `operation_canceled`.
class Progress {
public:
    void advance(std::int64_t entries, std::int64_t bytes) {
        m_entries += entries;
        m_bytes += bytes;
    }
    std::int64_t entries() const { return m_entries; } ///< files, folders and links done so far
    std::int64_t bytes() const { return m_bytes; } ///< their contents, those of a file half copied included

    void cancel() { m_isCancelled = true; }
    bool isCancelled() const { return m_isCancelled; }

private:
    std::atomic<std::int64_t> m_entries = 0;
    std::atomic<std::int64_t> m_bytes = 0;
    std::atomic<bool> m_isCancelled = false;
};

} // namespace selvane
