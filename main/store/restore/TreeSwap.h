// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <filesystem>
#include <optional>
#include <sys/types.h>
#include <vector>

namespace selvane {

/// Something new under a temporary name, and what it is to replace beside it.
struct TreeSwap {
    enum class State {
        old,       ///< the old one has the name, or nothing does yet
        exchanged, ///< the new one has the name, and the old one stays beside it
        done,      ///< the new one has the name, and the old one is in the Trash
    };

    std::filesystem::path target;
    std::filesystem::path temporary;
    std::filesystem::path kept; ///< the name of the old one beside it, which everybody can see
    ino_t inode = 0;            ///< of the new one
    State state = State::old;

    /// Finds the inode of what is at `temporary`, and a free name for what is at `target`.
    static TreeSwap prepared(const std::filesystem::path& target, const std::filesystem::path& temporary);
    /// Whether what has this inode is at a path; false if that can't be told.
    static bool isAt(const std::filesystem::path& path, ino_t inode);
    /// Looks where the new one is. Throws if that can't be told.
    void look();
    /// Removes the new one unless it has the name, which the old one gets back if it has lost it.
    void removeUnplaced() const;
};

/// Puts all of these in place, and moves what was there to the Trash under the name of the target with
/// ".precedente" after it. Where the file system can exchange names, none is away for a moment.
///
/// If something fails before the first old one is in the Trash, everything is as it was. After that the new
/// ones stay, and an old one that the Trash didn't take stays beside them. May be called again after an
/// interruption, once all have been looked at: then it does what is left.
void swapAll(std::vector<TreeSwap>& swaps);

} // namespace selvane
