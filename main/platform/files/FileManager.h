// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <sys/types.h>
#include <vector>

namespace selvane {

/// Who may read a file that the program makes.
enum class Privacy {
    inherited, ///< as its origin, or as the user's file-creation mask says
    ownerOnly, ///< at most its owner: for files that can hold secrets
};

/// The user's files. Names are bytes: nothing here interprets them.
///
/// What fails throws `std::filesystem::filesystem_error` with the path and the system's error code.
/// New things are made complete at a temporary sibling, whose name begins with `kTemporaryPrefix`, and
/// then take their name in one step; a failure removes the sibling again. Nothing is ever reached by
/// recursing through a symbolic link.
class FileManager {
public:
    static constexpr std::string_view kTemporaryPrefix = ".selvane-";

    /// Whether there is any entry at `path`, a dangling link included; false on any error.
    bool exists(const std::filesystem::path& path) const;
    /// Whether something is there once links are followed; false on any error.
    bool existsFollowingLinks(const std::filesystem::path& path) const;
    /// The same, but throws when it can't be told, for example for want of permission.
    bool isPresent(const std::filesystem::path& path) const;
    bool isFolder(const std::filesystem::path& path) const;      ///< a real folder, not a link to one
    bool isRegularFile(const std::filesystem::path& path) const; ///< a real file, not a link to one

    /// The text of the symbolic link at `path`; nothing when there is no link there.
    std::optional<std::filesystem::path> linkTarget(const std::filesystem::path& path) const;
    /// `path` with every symbolic link in it resolved. Throws when it leads nowhere.
    std::filesystem::path resolved(const std::filesystem::path& path) const;

    /// Names of the entries of a folder in the order of its listing, hidden ones included.
    std::vector<std::string> entries(const std::filesystem::path& folder) const;
    /// The same, but empty when the folder is missing or can't be read.
    std::vector<std::string> entriesIfReadable(const std::filesystem::path& folder) const;

    /// The bytes of a file, links followed. Throws for anything but a regular file.
    std::string read(const std::filesystem::path& file) const;
    /// The same, but nothing when that fails for any reason.
    std::optional<std::string> readIfPossible(const std::filesystem::path& file) const;
    /// Replaces `file` whole or leaves it as it was. A file that is replaced hands its mode on; a new one
    /// gets 0600 when it is `ownerOnly`, else 0644 less the creation mask. A link at `file` is replaced,
    /// never followed. The folder must exist. Waits for the disk when something is replaced.
    void write(const std::filesystem::path& file, std::string_view bytes,
               Privacy privacy = Privacy::inherited) const;
    void setMode(const std::filesystem::path& file, mode_t mode) const;
    /// The permission bits of what is at `path`, a link not followed; nothing when that fails.
    std::optional<mode_t> mode(const std::filesystem::path& path) const;

    /// With all parents; fine when it exists, and then left as it is.
    void createFolders(const std::filesystem::path& folder, Privacy privacy = Privacy::inherited) const;
    /// For its owner alone; fails when anything is there.
    void createFolder(const std::filesystem::path& folder) const;
    /// Makes a symbolic link whose text is `target`. Fails when anything is at `link`.
    void createLink(const std::filesystem::path& target, const std::filesystem::path& link) const;

    /// Copies a file, link or folder with its modes, times and extended attributes; links inside are copied
    /// as links, FIFOs and sockets are made anew. Shares blocks where the file system can. Fails when
    /// anything is at `to`.
    void copy(const std::filesystem::path& from, const std::filesystem::path& to,
              Privacy privacy = Privacy::inherited) const;
    /// The same, but not through a temporary sibling: into a folder that is itself still temporary. What was
    /// copied before a failure stays.
    void copyDirectly(const std::filesystem::path& from, const std::filesystem::path& to) const;
    /// Moves to another name, also across file systems. Fails when anything is at `to`.
    void move(const std::filesystem::path& from, const std::filesystem::path& to) const;

    /// Puts what `make` builds at the path it is given in the place of `path`, when it is complete. What
    /// stood at `path` goes to the Trash; without anything there it is a plain creation.
    void replaceTrashing(const std::filesystem::path& path,
                         const std::function<void(const std::filesystem::path& temporary)>& make) const;
    /// The same for a symbolic link at `link`, which is dropped. Fails when there is no link any more.
    void replaceLink(const std::filesystem::path& link,
                     const std::function<void(const std::filesystem::path& temporary)>& make) const;

    /// Removes a file or link (not a folder).
    void removeFile(const std::filesystem::path& file) const;
    /// Removes a symbolic link. False, with nothing done, when anything else or nothing is there.
    bool removeLink(const std::filesystem::path& link) const;
    /// Removes everything at `path`, folders without write permission included; fine when nothing is there.
    void removeTree(const std::filesystem::path& path) const;
    /// Moves to the user's Trash. Throws `LauncherError`, with the original untouched, where the Trash can't
    /// take it.
    void moveToTrash(const std::filesystem::path& path) const;
};

} // namespace selvane
