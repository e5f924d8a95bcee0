// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <deque>
#include <exception>
#include <filesystem>
#include <functional>
#include <memory>
#include <mutex>
#include <set>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "platform/files/DiskSync.h"
#include "platform/files/FileCopier.h"
#include "platform/files/FileCopy.h"
#include "platform/files/Placement.h"

namespace selvane {

class FileChanges;

/// Many new files and folders for the price of a few waits: they get their names together, once all of them
/// are on the disk. Until then they are in temporary folders. Copies are made and files written several at a
/// time. Errors are thrown as by `FileManager`, perhaps only by a later call.
///
/// If there are very many, some get their names before `finish`, while others are still being copied; so
/// memory doesn't grow. They get them in the order in which they were added.
class FileBatch {
public:
    /// The temporary folders are made in `folder`, or beside what is on another file system. What a killed
    /// run has left of its own there is removed first, so the caller keeps other Selvanes away from these
    /// places. What gets its name is noted in `changes`, if given.
    explicit FileBatch(const std::filesystem::path& folder, Progress* progress = nullptr,
                       FileChanges* changes = nullptr);
    /// Removes whatever has no name yet.
    ~FileBatch();
    FileBatch(const FileBatch&) = delete;
    FileBatch& operator=(const FileBatch&) = delete;

    /// Copies as `FileManager::copy` does. `finish` fails if anything is at `to`.
    void copy(const std::filesystem::path& from, const std::filesystem::path& to,
              Privacy privacy = Privacy::inherited);
    /// The same in the place of the symbolic link at `link`. `finish` fails if it is no longer a link.
    void copyOverLink(const std::filesystem::path& from, const std::filesystem::path& link);
    /// The same for what is certainly a file; fails if it isn't one by then.
    void copyFileOverLink(const std::filesystem::path& from, const std::filesystem::path& link);
    /// Writes what `make` returns, which may be called in another thread. Replaces what is at `file`, unless
    /// it is a folder. The new file has the mode 0600 if `ownerOnly`, else 0644 less the creation mask.
    /// `finish` throws what `make` throws.
    void write(const std::filesystem::path& file, std::function<std::string()> make, Privacy privacy);

    /// Moves as `FileManager::move` does. `finish` fails if anything is at `to`.
    void move(const std::filesystem::path& from, const std::filesystem::path& to);

    /// Waits until everything is on the disk under its name. If something failed, what was added before it
    /// has its name; the rest, perhaps, has not.
    void finish();

private:
    struct Folder {
        std::filesystem::path path;
        bool isElsewhere;                  ///< on another file system than the temporary folders
        std::filesystem::path temporary{}; ///< then inside it; empty if there is none
    };
    struct Entry {
        Folder* folder;
        std::string name;
        std::filesystem::path temporary; ///< where it is until it has its name
        files::Replaces kind;
    };
    struct Round;

    void copyAs(files::Replaces kind, const std::filesystem::path& from, const std::filesystem::path& to,
                Privacy privacy);
    void copyAs(files::Replaces kind, const std::filesystem::path& from, bool isFile,
                const std::filesystem::path& to, Privacy privacy);
    Entry& add(const std::filesystem::path& target, files::Replaces kind);
    /// The same; returns where to make what will be at `target`.
    std::filesystem::path addNew(const std::filesystem::path& target, files::Replaces kind);
    const std::filesystem::path& partOfRound(const std::filesystem::path& target);
    Folder& folderAt(const std::filesystem::path& path);
    std::filesystem::path makeTemporary(const std::filesystem::path& in, const std::filesystem::path& target);
    void writeNew(const std::filesystem::path& temporary, const std::filesystem::path& target,
                  std::string_view bytes, Privacy privacy);
    void close();
    std::vector<std::shared_ptr<Round>> takeCopied();
    void settleCopied();
    void settleAllCopied();
    void settle(const Round& round);
    void removeUsed();
    void place(const Entry& entry);
    void waitForNames();
    void removeOriginals();
    void removeTemporaries();

    std::filesystem::path m_folder;
    files::MountId m_mount;
    Progress* m_progress;
    FileChanges* m_changes;
    files::DiskSync m_written;
    std::deque<std::filesystem::path> m_originals;     ///< of copies, to be removed
    std::deque<Folder> m_folders;                      ///< those whose names change
    std::unordered_map<std::string, Folder*> m_places; ///< the same by path
    std::size_t m_count = 0;                           ///< of all that was added
    std::shared_ptr<Round> m_open;                     ///< gets what is added next
    std::mutex m_settling;                             ///< held while names are given; of the next
    std::vector<std::filesystem::path> m_used;         ///< temporary folders no longer needed
    std::mutex m_mutex;                                ///< of the following
    std::set<std::filesystem::path> m_temporaries;     ///< all the temporary folders
    std::deque<std::shared_ptr<Round>> m_closed;       ///< whose names aren't given yet, in order
    FileCopier m_copier;                               ///< ends before what its threads use
};

} // namespace selvane
