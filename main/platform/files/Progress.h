// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <atomic>
#include <condition_variable>
#include <cstdint>
#include <deque>
#include <filesystem>
#include <mutex>
#include <optional>
#include <thread>

namespace selvane {

/// How far a long operation has come, for whoever watches it, and whether it is to stop. May be used from any
/// thread. An operation that was cancelled removes what it had begun and throws a `filesystem_error` whose
/// code is `operation_canceled`.
class Progress {
public:
    struct Amount {
        std::int64_t entries = 0; ///< files, folders and links
        std::int64_t bytes = 0;   ///< contents of the files
    };

    Progress() = default;
    Progress(const Progress&) = delete;
    Progress& operator=(const Progress&) = delete;
    ~Progress(); ///< stops counting

    void advance(std::int64_t entries, std::int64_t bytes) {
        m_entries += entries;
        m_bytes += bytes;
    }
    std::int64_t entries() const { return m_entries; } ///< done so far
    std::int64_t bytes() const { return m_bytes; }     ///< those of a file half copied included

    /// Announces that everything at `tree` will be done. It is counted meanwhile, on another thread, without
    /// following links; what can't be read isn't counted.
    void expect(const std::filesystem::path& tree);
    /// The same for what the caller has counted. Without entries, only bytes are told.
    void expect(Amount amount);
    /// All that was announced; nothing while it is being counted, or if nothing was.
    std::optional<Amount> expected() const;

    void cancel() { m_isCancelled = true; }
    bool isCancelled() const { return m_isCancelled; }
    /// Throws what a cancelled operation throws, if it was. For work without paths of its own.
    void requireWanted() const;

private:
    void count();
    void add(const std::filesystem::directory_entry& entry);
    bool mayGoOn() const { return !m_isEnding && !m_isCancelled; }

    std::atomic<std::int64_t> m_entries = 0;
    std::atomic<std::int64_t> m_bytes = 0;
    std::atomic<bool> m_isCancelled = false;

    mutable std::mutex m_mutex; ///< of the following
    std::condition_variable m_announced;
    std::deque<std::filesystem::path> m_trees; ///< not counted yet, or being counted
    Amount m_expected;
    std::atomic<bool> m_isEnding = false;
    std::thread m_counter; ///< runs from the first announcement on
};

} // namespace selvane
