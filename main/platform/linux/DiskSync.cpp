// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "platform/files/DiskSync.h"

#include <atomic>
#include <cerrno>
#include <chrono>
#include <fcntl.h>
#include <linux/magic.h>
#include <sys/vfs.h>
#include <unistd.h>

namespace selvane::files {
namespace {

/// The system needs no longer to begin to write a file, unless the disk is busy.
constexpr std::chrono::microseconds kUsual(400);

} // namespace

int syncOne(int file) {
    if (::fsync(file) == 0)
        return 0;
    // Some file systems don't know this for folders and special files; they have nothing to wait for.
    return errno == EINVAL || errno == ENOTSUP || errno == ENOSYS ? 0 : errno;
}

bool canSyncTogether(int file) {
    // A file system in user space isn't asked to write; the system only hands over what it holds itself.
    struct statfs status = {};
    return ::fstatfs(file, &status) == 0 && status.f_type != FUSE_SUPER_MAGIC;
}

int startWriting(int file) {
    using Clock = std::chrono::steady_clock;
    constexpr Clock::time_point kNobody;
    static std::atomic<Clock::time_point> since = kNobody; // when whoever is at it has begun
    const Clock::time_point now = Clock::now();
    const Clock::time_point other = since;
    // While the disk is busy, the system makes its callers wait here. One of them is enough: what the others
    // leave out is written when it is waited for. What can't be written is reported then, too.
    if (other != kNobody && now - other > kUsual)
        return 0;
    since = now;
    static_cast<void>(::sync_file_range(file, 0, 0, SYNC_FILE_RANGE_WRITE));
    since = kNobody;
    return 0;
}

int syncTogether(int file) {
    return ::syncfs(file) == 0 ? 0 : errno;
}

} // namespace selvane::files
