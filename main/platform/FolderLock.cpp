// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "platform/FolderLock.h"

#include <sys/file.h>

namespace selvane {

FolderLock::FolderLock(const std::filesystem::path& folder)
    : m_folder(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)) {
    while (m_folder && ::flock(m_folder.get(), LOCK_EX) != 0 && errno == EINTR) {
    }
}

} // namespace selvane
