// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "store/restore/TreeSwap.h"

#include <exception>
#include <string>
#include <sys/stat.h>

#include "platform/files/Descriptor.h"
#include "platform/files/DiskSync.h"
#include "platform/files/FileCopy.h"
#include "platform/files/FileManager.h"

namespace selvane {
namespace {

namespace fs = std::filesystem;

using files::fail;
using State = TreeSwap::State;

/// Nothing if nothing is there.
std::optional<ino_t> inodeOf(const fs::path& path) {
    struct stat status = {};
    if (::lstat(path.c_str(), &status) == 0)
        return status.st_ino;
    if (!files::meansMissing(errno))
        fail("look up", path, errno);
    return std::nullopt;
}

/// A free name for what was at `target`.
fs::path nameForOld(const fs::path& target) {
    const FileManager files;
    const std::string base = target.native() + ".precedente";
    fs::path name = base;
    for (int number = 2; files.exists(name); ++number)
        name = base + "-" + std::to_string(number);
    return name;
}

void waitForNames(const fs::path& path) {
    if (const int error = files::syncFolder(path.parent_path()); error != 0)
        fail("restore", path, error);
}

/// For file systems that can't exchange names. For a moment, nothing has the name.
void placeInSteps(const TreeSwap& swap) {
    if (const int error = files::renameExclusively(swap.target, swap.kept); error != 0)
        fail("restore", swap.target, error);
    if (const int error = files::renameExclusively(swap.temporary, swap.target); error != 0) {
        static_cast<void>(files::renameExclusively(swap.kept, swap.target));
        fail("restore", swap.target, error);
    }
}

/// The new one takes the name that is meant for the old one, and then they exchange their names: so the old
/// one is never under a name that only Selvane knows.
void place(TreeSwap& swap) {
    const bool isFree = !inodeOf(swap.target);
    const fs::path& first = isFree ? swap.target : swap.kept;
    const fs::path& from = TreeSwap::isAt(swap.kept, swap.inode) ? swap.kept : swap.temporary;
    if (from != first) {
        if (const int error = files::renameExclusively(from, first); error != 0)
            fail("restore", swap.target, error);
    }
    swap.state = isFree ? State::done : State::old;
    if (isFree)
        return;
    if (const int error = files::exchangeNames(swap.kept, swap.target); error != 0) {
        const int back = files::renameExclusively(swap.kept, swap.temporary);
        if (error != ENOTSUP || back != 0)
            fail("restore", swap.target, error);
        placeInSteps(swap);
    }
    swap.state = State::exchanged;
}

/// The new one gets its temporary name back.
void takeBack(TreeSwap& swap) noexcept {
    int error = 0;
    if (swap.state == State::done) {
        error = files::renameExclusively(swap.target, swap.temporary);
    } else if (swap.state == State::exchanged) {
        error = files::exchangeNames(swap.kept, swap.target);
        if (error == 0)
            static_cast<void>(files::renameExclusively(swap.kept, swap.temporary));
        else if (error == ENOTSUP && files::renameExclusively(swap.target, swap.temporary) == 0)
            error = files::renameExclusively(swap.kept, swap.target);
    }
    if (error == 0)
        swap.state = State::old;
}

} // namespace

TreeSwap TreeSwap::prepared(const fs::path& target, const fs::path& temporary) {
    const auto inode = inodeOf(temporary);
    if (!inode)
        fail("restore", target, ENOENT);
    return {target, temporary, nameForOld(target), *inode, State::old};
}

bool TreeSwap::isAt(const fs::path& path, ino_t inode) {
    struct stat status = {};
    return ::lstat(path.c_str(), &status) == 0 && status.st_ino == inode;
}

void TreeSwap::look() {
    if (inodeOf(target) != inode)
        state = State::old;
    else
        state = inodeOf(kept) ? State::exchanged : State::done;
}

void TreeSwap::removeUnplaced() const {
    for (const fs::path& path : {temporary, kept}) {
        if (isAt(path, inode))
            FileManager().removeTree(path);
    }
    // Interrupted where names can't be exchanged: the old one has only its other name.
    if (!inodeOf(target) && inodeOf(kept)) {
        if (const int error = files::renameExclusively(kept, target); error != 0)
            fail("restore", target, error);
    }
}

void swapAll(std::vector<TreeSwap>& swaps) {
    std::vector<TreeSwap*> placed;
    bool hasTrashed = false;
    std::exception_ptr failure;
    try {
        for (TreeSwap& swap : swaps) {
            if (swap.state != State::old)
                continue;
            placed.push_back(&swap);
            place(swap);
        }
        for (const TreeSwap& swap : swaps)
            waitForNames(swap.target);
        for (TreeSwap& swap : swaps) {
            if (swap.state != State::exchanged)
                continue;
            try {
                FileManager().moveToTrash(swap.kept);
                swap.state = State::done;
                hasTrashed = true;
            } catch (...) {
                if (!hasTrashed)
                    throw;
                failure = std::current_exception();
            }
        }
    } catch (...) {
        for (auto swap = placed.rbegin(); swap != placed.rend(); ++swap)
            takeBack(**swap);
        throw;
    }
    if (failure)
        std::rethrow_exception(failure);
}

} // namespace selvane
