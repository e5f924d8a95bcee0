// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "platform/files/DiskSync.h"

#include <cerrno>
#include <fcntl.h>
#include <unistd.h>

namespace selvane::files {

namespace {

/// How file systems answer a call that they don't know.
bool isUnknownCall(int error) {
    return error == EINVAL || error == ENOTSUP || error == ENOTTY;
}

} // namespace

int syncOne(int file) {
    // The drive may keep what it was given in its own memory; this makes it write that too.
    if (::fcntl(file, F_FULLFSYNC) == 0)
        return 0;
    return isUnknownCall(errno) ? startWriting(file) : errno;
}

bool canSyncTogether(int /*file*/) {
    return true;
}

int startWriting(int file) {
    return ::fsync(file) == 0 || isUnknownCall(errno) ? 0 : errno;
}

int syncTogether(int file) {
    return syncOne(file); // the drive's memory is shared by all files
}

} // namespace selvane::files
