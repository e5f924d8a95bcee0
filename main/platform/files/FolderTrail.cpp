// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "platform/files/FolderTrail.h"

#include <sys/stat.h>

namespace selvane::files {
namespace {

constexpr std::size_t kOpenFolders = 8;

} // namespace

int FolderTrail::enter(Descriptor folder) {
    if (m_levels.size() >= kOpenFolders) {
        Level& far = m_levels[m_levels.size() - kOpenFolders];
        if (far.folder) {
            struct stat status = {};
            if (::fstat(far.folder.get(), &status) != 0)
                return errno;
            far.device = status.st_dev;
            far.inode = status.st_ino;
            far.folder.close();
        }
    }
    m_levels.push_back({std::move(folder)});
    return 0;
}

int FolderTrail::leave(Descriptor& left) {
    left = std::move(m_levels.back().folder);
    m_levels.pop_back();
    if (isEmpty() || m_levels.back().folder)
        return 0;
    Level& level = m_levels.back();
    Descriptor parent(::openat(left.get(), "..", O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    struct stat status = {};
    if (!parent || ::fstat(parent.get(), &status) != 0)
        return errno;
    // Somebody moved the folder: its new parent isn't part of the tree.
    if (status.st_dev != level.device || status.st_ino != level.inode)
        return ENOENT;
    level.folder = std::move(parent);
    return 0;
}

} // namespace selvane::files
