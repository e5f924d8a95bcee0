// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "platform/files/FolderLock.h"

#include <sys/file.h>
#include <sys/stat.h>

namespace selvane {
namespace {

/// Whether `folder` is still at `path`: it may have been moved while we waited for the lock.
bool isAt(const std::filesystem::path& path, int folder) {
    struct stat open = {};
    struct stat there = {};
    return ::fstat(folder, &open) != 0 ||
           (::stat(path.c_str(), &there) == 0 && there.st_dev == open.st_dev && there.st_ino == open.st_ino);
}

} // namespace

FolderLock::FolderLock(const std::filesystem::path& folder) {
    do {
        m_folder = files::Descriptor(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
        while (m_folder && ::flock(m_folder.get(), LOCK_EX) != 0 && errno == EINTR) {
        }
    } while (m_folder && !isAt(folder, m_folder.get()));
}

} // namespace selvane
