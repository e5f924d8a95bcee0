// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <filesystem>
#include <mutex>
#include <optional>
#include <sys/types.h>
#include <variant>
#include <vector>

#include "platform/files/FileState.h"
#include "platform/files/Trash.h"

namespace selvane {

class Progress;

/// What an operation changes in folders of the user's, so that it can be undone afterwards: what is at each
/// path since, and how to get back what was there. May be used from several threads.
class FileChanges {
public:
    /// What was there is now this copy's content, so another copy is made.
    struct CopyOf {
        std::filesystem::path copy;
    };
    using Former = std::variant<files::Nothing, files::LinkText, TrashedItem, CopyOf>;

    /// The folder that a path is in, and the link to it or the same.
    struct Holder {
        dev_t namedDevice = 0;
        ino_t namedInode = 0;
        dev_t device = 0;
        ino_t inode = 0;

        bool operator==(const Holder&) const = default;
    };

    FileChanges() = default;
    FileChanges(const FileChanges&) = delete;
    FileChanges& operator=(const FileChanges&) = delete;

    void add(const std::filesystem::path& path, Former former, files::FileState present);
    /// For what has gone to the Trash; without a place there, the changes can't be undone.
    void addTrashed(const std::filesystem::path& path, const std::optional<TrashedItem>& item,
                    files::FileState present = {});
    /// The state of something new that will get its path only now: nobody else can have changed it. If that
    /// can't be told, the changes can't be undone.
    files::FileState stateOfNew(const std::filesystem::path& temporary);
    /// From now on, `undo` is out of the question.
    void forget();
    bool canBeUndone() const;

    /// Throws `LauncherError` if anything at these paths, or of theirs in the Trash, has changed since.
    void requireUnchanged() const;
    /// The same. Then puts everything back as it was, in the order in which it was added: what is in the
    /// Trash leaves it, and what the operation has made goes. Each path is whole at any moment, and what is
    /// put back is on the disk before anything else is removed.
    ///
    /// If something fails or changes meanwhile, throws; what was put back by then stays so. Whatever was
    /// changed by others is kept.
    void undo(Progress* progress = nullptr) const;

private:
    struct Change {
        std::filesystem::path path;
        Former former;
        files::FileState present;
        Holder holder;
    };
    class Undoing;

    void requireUnchanged(const Change& change) const;

    mutable std::mutex m_mutex;
    std::vector<Change> m_changes;
    bool m_isKnown = true;
};

/// Removes it for good, unless it isn't what it was any more. Never fails: then it stays.
void removeFromTrash(const TrashedItem& item) noexcept;

} // namespace selvane
