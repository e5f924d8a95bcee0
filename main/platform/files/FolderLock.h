// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <filesystem>

#include "platform/files/Descriptor.h"

namespace selvane {

/// Locks a folder against other Selvanes for the lifetime of this object; they wait. A second lock on the
/// same folder waits for ever, even in the same thread. It leaves nothing behind, not even after a crash. It
/// does nothing if there is no such folder, even if that only turns out after waiting, or if the file system
/// has no locks.
class FolderLock {
public:
    explicit FolderLock(const std::filesystem::path& folder);

private:
    files::Descriptor m_folder;
};

} // namespace selvane
