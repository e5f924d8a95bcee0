// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <atomic>
#include <exception>
#include <filesystem>
#include <memory>
#include <mutex>
#include <vector>

#include "platform/files/FileBatch.h"

namespace selvane {

/// What gets its names together.
struct FileBatch::Round {
    /// So many entries at most. Waiting for so many costs little beside writing them.
    static constexpr std::size_t kMost = 1024;
    static constexpr std::size_t kMostInPart = 64;

    std::vector<Entry> entries;
    std::filesystem::path temporary; ///< the folder that they are made in
    std::filesystem::path part;      ///< what gets the next of them: that folder, or one inside it
    std::size_t inPart = 0;
    std::atomic<bool> isCopied = false;
    std::shared_ptr<void> copying; ///< kept by all that is still to be copied; sets that when nobody is left

    std::mutex mutex;           ///< of the following
    std::size_t failed = kMost; ///< the first entry that failed
    std::exception_ptr failure;

    void fail(std::size_t position, std::exception_ptr why) {
        const std::lock_guard guard(mutex);
        if (position >= failed)
            return;
        failed = position;
        failure = std::move(why);
    }
};

} // namespace selvane
