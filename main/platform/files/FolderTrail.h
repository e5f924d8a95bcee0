// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <sys/types.h>
#include <vector>

#include "platform/files/Descriptor.h"

namespace selvane::files {

/// The open folders from the top of a tree down to the one that is being worked on. Only the deepest few
/// stay open, so that no depth exhausts the file descriptors: the others are opened again on the way back,
/// by "..", and must be the same folders as before.
class FolderTrail {
public:
    bool isEmpty() const { return m_levels.empty(); }
    /// The deepest folder, or what stands for the working folder when there is none.
    int current() const { return isEmpty() ? AT_FDCWD : m_levels.back().folder.get(); }

    /// Returns 0 or an error, and then holds what it held before.
    int enter(Descriptor folder);
    /// Hands the deepest folder out as `left`. Returns 0 or an error: its parent can't be found again.
    int leave(Descriptor& left);

private:
    struct Level {
        Descriptor folder;
        dev_t device = 0; ///< set when the folder is closed
        ino_t inode = 0;
    };

    std::vector<Level> m_levels;
};

} // namespace selvane::files
