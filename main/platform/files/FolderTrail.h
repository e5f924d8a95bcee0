// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <sys/types.h>
#include <vector>

#include "platform/files/Descriptor.h"

namespace selvane::files {

/// The open folders from the top of a tree down to the current one. Only the deepest few stay open, so a deep
/// tree can't exhaust the file descriptors. The others are reopened through ".." on the way back and must
/// still be the same folders.
class FolderTrail {
public:
    bool isEmpty() const { return m_levels.empty(); }
    /// The deepest folder; AT_FDCWD, the working folder, if there is none.
    int current() const { return isEmpty() ? AT_FDCWD : m_levels.back().folder.get(); }

    /// Returns 0 or an error; after an error, the trail is unchanged.
    int enter(Descriptor folder);
    /// Returns the deepest folder in `left`. The result is 0, or an error if its parent can't be found again.
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
