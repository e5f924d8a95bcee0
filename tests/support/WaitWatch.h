// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <filesystem>
#include <functional>

namespace selvane::test {

/// Looks on when this thread is about to wait for the disk (`fsync`, `syncfs`) or for a lock (`flock`), and
/// can do what another program would do in that moment. One at a time.
class WaitWatch {
public:
    enum class For { disk, lock };
    using Look = std::function<void(const std::filesystem::path& file)>;

    /// `look` is called with the path of the open file before the real call is made.
    WaitWatch(For what, Look look);
    WaitWatch(const WaitWatch&) = delete;
    WaitWatch& operator=(const WaitWatch&) = delete;
    ~WaitWatch();
};

/// Makes closing a file fail, as a full quota does on a network: for every file that was opened for writing
/// and whose name begins like this. One at a time.
class FailingClose {
public:
    FailingClose(const char* name, int error);
    FailingClose(const FailingClose&) = delete;
    FailingClose& operator=(const FailingClose&) = delete;
    ~FailingClose();
};

/// Whether somebody holds the lock of a folder.
bool isLocked(const std::filesystem::path& folder);

} // namespace selvane::test
