// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "store/restore/Restore.h"

#include <algorithm>
#include <set>

#include "model/LauncherError.h"
#include "platform/files/NormalizedPath.h"
#include "platform/text/ErrorText.h"
#include "store/ProfileStore.h"
#include "store/restore/AgentProcesses.h"
#include "store/restore/ArchiveParts.h"
#include "store/restore/Restoration.h"
#include "store/restore/RestoreJournal.h"
#include "store/restore/TreeSwap.h"

namespace selvane {
namespace {

namespace fs = std::filesystem;

using PartKind = RestorePart::Kind;

/// Removes what was unpacked and got no place.
void removeUnplaced(const RestoreJournal& journal) {
    const FileManager files;
    for (const RestoreJournal::Part& part : journal.parts) {
        for (const TreeSwap& swap : part.swaps) {
            if (journal.isComplete)
                swap.removeUnplaced();
            else // nothing of the user's has had that name
                files.removeTree(swap.temporary);
        }
    }
}

bool hasBegun(const RestoreJournal::Part& part) {
    return std::ranges::any_of(part.swaps,
                               [](const TreeSwap& swap) { return swap.state != TreeSwap::State::old; });
}

bool isDone(const RestoreJournal::Part& part) {
    return std::ranges::all_of(part.swaps,
                               [](const TreeSwap& swap) { return swap.state == TreeSwap::State::done; });
}

bool isWaitingForTrash(const RestoreJournal::Part& part) {
    return std::ranges::any_of(part.swaps,
                               [](const TreeSwap& swap) { return swap.state == TreeSwap::State::exchanged; });
}

/// Puts one part after the other in place. On failure, those after it stay as they were, and the error says
/// which ones are restored.
void swapParts(RestoreJournal& journal, const fs::path& root) {
    std::string done;
    try {
        for (RestoreJournal::Part& part : journal.parts) {
            std::vector<FolderLock> locks;
            for (const TreeSwap& swap : part.swaps)
                locks.emplace_back(swap.target);
            swapAll(part.swaps);
            done += (done.empty() ? "" : ", ") + part.title;
        }
    } catch (const std::exception& error) {
        const std::string reason = describe(error);
        try {
            removeUnplaced(journal);
            // What the Trash didn't take is still beside what replaces it: the next restore tries again.
            if (std::ranges::none_of(journal.parts, isWaitingForTrash))
                RestoreJournal::remove(root);
        } catch (const fs::filesystem_error&) { // the next restore tries again
        }
        if (done.empty())
            throw;
        throw LauncherError(reason + " (già ripristinati: " + done + ")");
    }
    RestoreJournal::remove(root);
}

/// What was begun is completed, what wasn't stays as it is. The root is locked.
void finish(const ProfileStore& store) {
    Restoration::removeAside(savedPlaces(store));
    auto journal = RestoreJournal::read(store.root());
    if (!journal) {
        if (FileManager().exists(RestoreJournal::fileIn(store.root()))) // damaged, and so never used
            RestoreJournal::remove(store.root());
        return;
    }
    for (RestoreJournal::Part& part : journal->parts) {
        if (!journal->isComplete)
            break;
        std::ranges::for_each(part.swaps, &TreeSwap::look);
        if (hasBegun(part) && !isDone(part))
            swapAll(part.swaps);
    }
    removeUnplaced(*journal);
    RestoreJournal::remove(store.root());
}

} // namespace

std::vector<RestorePart> partsInUse(const ProfileStore& store, const std::vector<RestorePart>& parts) {
    std::vector<RestorePart> used;
    if (store.testMode())
        return used;
    const std::vector<ClaudeApp::Instance> copies = store.claudeInstances();
    const std::set<std::string> agents = agentConfigurations(store.defaultDir());
    for (const RestorePart& part : parts) {
        const auto usesConfiguration = [&] {
            if (part.trees.empty() || part.isRecordOnly())
                return false;
            const std::string folder = normalizedPath(
                part.kind == PartKind::principal ? store.defaultDir() : store.root() / part.id);
            return agents.contains(folder) || std::ranges::any_of(copies, [&](const auto& copy) {
                       return !copy.isConfigKnown ||
                              copy.config.value_or(normalizedPath(store.defaultDir())) == folder;
                   });
        };
        const bool isUsed = part.kind == PartKind::account
                                ? store.desktopDataInUse(part.trees.front().target)
                                : part.kind != PartKind::terminalHelper && usesConfiguration();
        if (isUsed)
            used.push_back(part);
    }
    return used;
}

RestoreReport tryRestore(const ProfileStore& store, const CheckedArchive& archive,
                         const std::vector<RestorePart>& parts) {
    Restoration restoration(archive, parts, savedPlaces(store), store.progress());
    restoration.prepareAside();
    return restoration.unpack();
}

RestoreReport restore(ProfileStore& store, const CheckedArchive& archive,
                      const std::vector<RestorePart>& parts) {
    const auto requireUnused = [&] {
        if (const auto used = partsInUse(store, parts); !used.empty())
            throw LauncherError("Chiudi Claude prima del ripristino: sta usando " + titleOf(used.front()));
    };
    requireUnused();
    if (store.needsDesktopRestore())
        store.restoreDesktopData();
    const FolderLock lock(store.root());
    finish(store);
    Restoration restoration(archive, parts, savedPlaces(store), store.progress());
    RestoreJournal journal = restoration.prepareBeside();
    RestoreReport report;
    try {
        journal.write(store.root());
        report = restoration.unpack();
        requireUnused();
        for (RestoreJournal::Part& part : journal.parts) {
            std::erase_if(part.swaps, [](const TreeSwap& swap) { // nothing but a link that was left out
                return !FileManager().exists(swap.temporary);
            });
            for (TreeSwap& swap : part.swaps)
                swap = TreeSwap::prepared(swap.target, swap.temporary);
        }
        journal.isComplete = true;
        journal.write(store.root());
    } catch (...) {
        restoration.discard();
        RestoreJournal::remove(store.root());
        throw;
    }
    restoration.release();
    swapParts(journal, store.root());
    for (const RestorePart& part : restoration.parts()) {
        if (part.kind == PartKind::terminalHelper)
            store.installTerminalHelper();
    }
    return report;
}

std::optional<InterruptedRestore> interruptedRestore(const ProfileStore& store) {
    auto journal = RestoreJournal::read(store.root());
    if (!journal)
        return std::nullopt;
    InterruptedRestore result{journal->archive, {}, {}, {}};
    for (RestoreJournal::Part& part : journal->parts) {
        if (part.swaps.empty())
            continue;
        if (journal->isComplete)
            std::ranges::for_each(part.swaps, &TreeSwap::look);
        auto& list = !journal->isComplete || !hasBegun(part) ? result.untouched
                     : isDone(part)                          ? result.restored
                                                             : result.begun;
        list.push_back(part.title);
    }
    return result;
}

void completeRestore(const ProfileStore& store) {
    const FolderLock lock(store.root());
    finish(store);
}

} // namespace selvane
