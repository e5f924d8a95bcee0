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

namespace files {
class DiskSync;
}
struct TrashedItem;
class FileChanges;
class Progress;

/// Who may read a file that Selvane creates.
enum class Privacy {
    inherited, ///< as for the original, or as the user's file-creation mask says
    ownerOnly, ///< the owner at most: for files that can hold secrets
};

/// What a listing does about what it can't read.
enum class Unreadable {
    leftOut, ///< for display
    fails,   ///< where what is missing from the listing would be lost, hidden or replaced
};

/// The user's files. Names are bytes; nothing here interprets them.
///
/// Failures throw `std::filesystem::filesystem_error` with the path and the system's error code. New things
/// are built under a temporary name beside the target, beginning with `kTemporaryPrefix`, and take their
/// final name in one step; after a failure, the temporary is removed. No operation ever recurses through a
/// symbolic link.
///
/// What was written, copied, moved, replaced or moved to the Trash is on the disk when the operation ends:
/// the content before it gets its name, the name before anything of the user's is removed. Only creating
/// folders and links, changing modes and removing wait for nothing.
class FileManager {
public:
    static constexpr std::string_view kTemporaryPrefix = ".selvane-";
    /// The largest files that are read, in bytes. A larger one is no configuration and would only exhaust
    /// memory.
    static constexpr std::size_t kLongestText = 256U << 20;
    static constexpr std::size_t kLongestRecord = 1U << 20; ///< for Selvane's own files

    FileManager() = default;
    /// Tells `progress` what is copied, and stops copying when it says so.
    explicit FileManager(Progress* progress) : m_progress(progress) {}
    /// The same, and notes in `changes` how to undo what replaces, removes a link or goes to the Trash.
    FileManager(Progress* progress, FileChanges* changes) : m_progress(progress), m_changes(changes) {}
    /// Doesn't wait for the disk but leaves that to `written`: for making something of many parts that counts
    /// only when all of it is there.
    explicit FileManager(files::DiskSync& written, Progress* progress = nullptr)
        : m_written(&written), m_progress(progress) {}

    // Whether something is there decides what is changed. So only what is certainly missing counts as
    // missing; if that can't be determined, for lack of permission or with a broken disk, these throw.

    /// Whether anything is at `path`, even a dangling link.
    bool exists(const std::filesystem::path& path) const;
    /// Whether something exists after following links.
    bool isPresent(const std::filesystem::path& path) const;
    bool isFolder(const std::filesystem::path& path) const;      ///< a real folder, not a link to one
    bool isRegularFile(const std::filesystem::path& path) const; ///< a real file, not a link to one
    /// The permission bits at `path`, without following a link; nothing if nothing is there.
    std::optional<mode_t> mode(const std::filesystem::path& path) const;
    /// The text of the symbolic link at `path`; nothing if there is no link.
    std::optional<std::filesystem::path> linkTarget(const std::filesystem::path& path) const;
    /// The first link on the way from `top` down to `folder`, the latter included; nothing if there is none.
    std::optional<std::filesystem::path> linkBelow(const std::filesystem::path& top,
                                                   const std::filesystem::path& folder) const;
    /// `path` with all symbolic links resolved. Throws if it doesn't exist.
    std::filesystem::path resolved(const std::filesystem::path& path) const;

    /// The names of a folder's entries in listing order, including hidden ones.
    std::vector<std::string> entries(const std::filesystem::path& folder) const;
    /// The same, but empty if there is no folder, or if it is `Unreadable::leftOut`.
    std::vector<std::string> entriesIfPresent(const std::filesystem::path& folder,
                                              Unreadable unreadable = Unreadable::fails) const;
    /// The same, for display: empty on any failure.
    std::vector<std::string> entriesIfReadable(const std::filesystem::path& folder) const {
        return entriesIfPresent(folder, Unreadable::leftOut);
    }

    /// The bytes of a file, following links. Throws unless it is a regular file of at most `longest` bytes.
    std::string read(const std::filesystem::path& file, std::size_t longest = kLongestText) const;
    /// The same, but nothing if nothing is there, or only a dangling link.
    std::optional<std::string> readIfPresent(const std::filesystem::path& file,
                                             std::size_t longest = kLongestText) const;
    /// The same, for display: nothing on any failure.
    std::optional<std::string> readIfPossible(const std::filesystem::path& file,
                                              std::size_t longest = kLongestText) const;
    /// Replaces `file` whole or leaves it as it was. The new file keeps the mode of the one it replaces;
    /// otherwise it gets 0600 if `ownerOnly`, else 0644 less the creation mask. A link at `file` is replaced,
    /// never followed. The folder must exist.
    void write(const std::filesystem::path& file, std::string_view bytes,
               Privacy privacy = Privacy::inherited) const;
    /// Replaces `file`, which others may change at any time, if it still holds `expected`, or isn't there if
    /// that is nothing. Otherwise changes nothing and returns false. For its owner alone.
    bool writeIfUnchanged(const std::filesystem::path& file, const std::optional<std::string>& expected,
                          std::string_view bytes) const;
    /// Removes `file` if it still holds `expected`. Otherwise, even if it changes at the last moment, leaves
    /// it and returns false.
    bool removeIfUnchanged(const std::filesystem::path& file, std::string_view expected) const;
    void setMode(const std::filesystem::path& file, mode_t mode) const;

    /// Creates all missing parents too. An existing folder is left as it is.
    void createFolders(const std::filesystem::path& folder, Privacy privacy = Privacy::inherited) const;
    /// For its owner alone. Fails if anything is there.
    void createFolder(const std::filesystem::path& folder) const;
    /// Creates `folder` and what is missing between it and `top`, one of the folders above it, which must
    /// exist. Follows no link below `top`: fails with ENOTDIR if anything but a folder is there.
    void createFoldersBelow(const std::filesystem::path& top, const std::filesystem::path& folder) const;
    /// Removes a folder if it is empty; a link to one stays. Returns whether it did.
    bool removeEmptyFolder(const std::filesystem::path& folder) const;
    /// Creates a symbolic link whose text is `target`. Fails if anything is at `link`.
    void createLink(const std::filesystem::path& target, const std::filesystem::path& link) const;

    /// Copies a file, link or folder with its modes, times and extended attributes. Links inside are copied
    /// as links; FIFOs and sockets are created anew. Shares blocks if the file system can. Fails if anything
    /// is at `to`.
    void copy(const std::filesystem::path& from, const std::filesystem::path& to,
              Privacy privacy = Privacy::inherited) const;
    /// Moves, even across file systems: then the original is removed once the copy is on the disk. Fails if
    /// anything is at `to`. If it fails, `from` is still there, unless all that failed was waiting for its
    /// removal.
    void move(const std::filesystem::path& from, const std::filesystem::path& to) const;
    /// If `to` is a complete copy of `from`, as a move to another file system leaves it when it is
    /// interrupted, removes `from`. Otherwise changes nothing and returns false.
    bool completeMove(const std::filesystem::path& from, const std::filesystem::path& to) const;

    /// Replaces `path` by what `make` builds at the path it is given, once that is complete. The old content
    /// goes to the Trash; if there was none, this simply creates `path`.
    void replaceTrashing(const std::filesystem::path& path,
                         const std::function<void(const std::filesystem::path& temporary)>& make) const;
    /// Puts back the file that an interrupted `replaceTrashing` took from `path`, unless something else is
    /// there now; then it goes to the Trash. `replaceTrashing` begins with this. Call it before reading a
    /// file whose old content becomes part of the new one.
    void recoverReplaced(const std::filesystem::path& path) const;
    /// Replaces `path` by what `make` builds if what is there is a complete copy of `original`; it is removed
    /// then. Otherwise, even if it changes at the last moment, leaves it and returns false.
    bool replaceCopy(const std::filesystem::path& path, const std::filesystem::path& original,
                     const std::function<void(const std::filesystem::path& temporary)>& make) const;
    /// The same as `replaceTrashing` for a symbolic link at `link`, which is removed. Fails if it is no
    /// longer a link.
    void replaceLink(const std::filesystem::path& link,
                     const std::function<void(const std::filesystem::path& temporary)>& make) const;

    /// Removes a file or link, but not a folder.
    void removeFile(const std::filesystem::path& file) const;
    /// Removes a symbolic link. If there is none, does nothing and returns false. A file that takes the
    /// link's place at the last moment stays, or goes to the Trash if a newer one has taken that place too.
    bool removeLink(const std::filesystem::path& link) const;
    /// Removes everything at `path`, even folders without write permission. Does nothing if nothing is there.
    void removeTree(const std::filesystem::path& path) const;
    /// Moves `path` to the user's Trash. If the Trash can't take it, throws `LauncherError` and leaves it as
    /// it was.
    void moveToTrash(const std::filesystem::path& path) const;
    /// The same, but never noted as a change. Returns where it is now; nothing if that can't be told.
    std::optional<TrashedItem> discard(const std::filesystem::path& path) const;

    /// Waits until a file that another program wrote, and its mode, are on the disk.
    void waitForContent(const std::filesystem::path& file) const;
    /// Waits until the names in a folder are on the disk.
    void waitForNames(const std::filesystem::path& folder) const;

private:
    friend class FileCopier;

    void waitForPlaceOf(const std::filesystem::path& path) const;
    files::DiskSync* m_written = nullptr; ///< waits later, if set
    Progress* m_progress = nullptr;
    FileChanges* m_changes = nullptr;
};

} // namespace selvane
