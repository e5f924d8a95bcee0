// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <filesystem>
#include <string_view>
#include <vector>

#include "platform/files/DiskSync.h"
#include "platform/files/FileCopier.h"

namespace selvane {

/// Many new files and folders for the price of one wait: they get their names together, once all of them are
/// on the disk. Until then they are in a temporary folder beside their places. Copies are made several at a
/// time. Errors are thrown as by `FileManager`, perhaps only by a later call.
///
/// So that memory doesn't grow, some get their names before `finish` if there are thousands. They get them in
/// the order in which they were added.
class FileBatch {
public:
    explicit FileBatch(Progress* progress = nullptr) : m_progress(progress), m_copier(m_written, progress) {}
    /// Removes whatever has no name yet.
    ~FileBatch();
    FileBatch(const FileBatch&) = delete;
    FileBatch& operator=(const FileBatch&) = delete;

    /// Copies as `FileManager::copy` does. `finish` fails if anything is at `to`.
    void copy(const std::filesystem::path& from, const std::filesystem::path& to,
              Privacy privacy = Privacy::inherited);
    /// The same in the place of the symbolic link at `link`. `finish` fails if it is no longer a link.
    void copyOverLink(const std::filesystem::path& from, const std::filesystem::path& link);
    /// Replaces what is at `file`, unless it is a folder. The new file has the mode 0600 if `ownerOnly`, else
    /// 0644 less the creation mask.
    void write(const std::filesystem::path& file, std::string_view bytes, Privacy privacy);

    /// Moves as `FileManager::move` does. `finish` fails if anything is at `to`.
    void move(const std::filesystem::path& from, const std::filesystem::path& to);

    /// Waits until everything is on the disk under its name. What has its name keeps it if another fails.
    void finish();

private:
    enum class Kind { isNew, overLink, overFile };
    struct Entry {
        std::filesystem::path target;
        std::filesystem::path temporary;
        Kind kind;
    };
    struct Folder {
        std::filesystem::path path;
        std::filesystem::path temporary; ///< inside it; empty if there is none
    };

    void copyAs(Kind kind, const std::filesystem::path& from, const std::filesystem::path& to,
                Privacy privacy);
    Entry& add(const std::filesystem::path& target, Kind kind);
    /// The same; returns where to make what will be at `target`.
    std::filesystem::path addNew(const std::filesystem::path& target, Kind kind);
    Folder& folderOf(const std::filesystem::path& target);
    void place(const Entry& entry);
    void removeOriginals();
    void removeTemporaries();

    Progress* m_progress;
    files::DiskSync m_written;
    FileCopier m_copier;
    std::vector<Entry> m_entries;
    std::vector<std::filesystem::path> m_originals; ///< of copies, to be removed
    std::vector<Folder> m_folders;                  ///< those whose names change
};

} // namespace selvane
