// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "platform/files/DiskSync.h"

#include <cerrno>
#include <fcntl.h>
#include <linux/magic.h>
#include <sys/vfs.h>
#include <unistd.h>

namespace selvane::files {

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
    // What can't be written is reported when it is waited for.
    static_cast<void>(::sync_file_range(file, 0, 0, SYNC_FILE_RANGE_WRITE));
    return 0;
}

int syncTogether(int file) {
    return ::syncfs(file) == 0 ? 0 : errno;
}

} // namespace selvane::files
