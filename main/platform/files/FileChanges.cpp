// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "platform/files/FileChanges.h"

#include <deque>
#include <optional>
#include <set>
#include <sys/stat.h>
#include <utility>

#include "model/LauncherError.h"
#include "platform/files/DiskSync.h"
#include "platform/files/FileCopy.h"
#include "platform/files/FileManager.h"
#include "platform/files/Temporary.h"
#include "platform/text/Text.h"

namespace selvane {
namespace {

namespace fs = std::filesystem;

using files::fail;
using files::FileIdentity;
using files::FileState;
using files::LinkText;
using files::Nothing;
using files::stateOf;
using files::Temporary;

std::string quoted(const fs::path& path) {
    return "\"" + text::singleLine(path.filename().string()) + "\"";
}

LauncherError changed(const fs::path& path, const FileChanges::Former& former) {
    const bool isKept = std::holds_alternative<TrashedItem>(former);
    return LauncherError(quoted(path) + " è cambiato nel frattempo e resta com'è" +
                         (isKept ? ": quello che c'era prima è nel Cestino" : ""));
}

std::optional<FileIdentity> identityAt(const fs::path& path) {
    struct stat status = {};
    if (::lstat(path.c_str(), &status) == 0)
        return FileIdentity::of(status);
    if (!files::meansMissing(errno))
        fail("look up", path, errno);
    return std::nullopt;
}

/// What else is in the folder comes and goes.
std::optional<FileChanges::Holder> holderOf(const fs::path& path) {
    struct stat named = {};
    struct stat folder = {};
    const fs::path holder = files::folderOf(path);
    if (::lstat(holder.c_str(), &named) != 0 || ::stat(holder.c_str(), &folder) != 0)
        return std::nullopt;
    return FileChanges::Holder{named.st_dev, named.st_ino, folder.st_dev, folder.st_ino};
}

} // namespace

void FileChanges::add(const fs::path& path, Former former, FileState present) {
    const auto holder = holderOf(path);
    if (!holder)
        return forget();
    const std::lock_guard guard(m_mutex);
    m_changes.push_back({path, std::move(former), std::move(present), *holder});
}

void FileChanges::addTrashed(const fs::path& path, const std::optional<TrashedItem>& item,
                             FileState present) {
    if (item)
        add(path, *item, std::move(present));
    else
        forget();
}

FileState FileChanges::stateOfNew(const fs::path& temporary) {
    try {
        return stateOf(temporary);
    } catch (const fs::filesystem_error&) {
        forget();
        return {};
    }
}

void FileChanges::forget() {
    const std::lock_guard guard(m_mutex);
    m_isKnown = false;
}

bool FileChanges::canBeUndone() const {
    const std::lock_guard guard(m_mutex);
    return m_isKnown;
}

void FileChanges::requireUnchanged(const Change& change) const {
    if (holderOf(change.path) != change.holder || stateOf(change.path) != change.present)
        throw changed(change.path, change.former);
    const auto* item = std::get_if<TrashedItem>(&change.former);
    if (item != nullptr && identityAt(item->place) != item->identity)
        throw LauncherError(quoted(change.path) + " non è più nel Cestino: non si può rimettere a posto");
}

void FileChanges::requireUnchanged() const {
    const std::lock_guard guard(m_mutex);
    for (const Change& change : m_changes)
        requireUnchanged(change);
}

/// One run of `undo`.
class FileChanges::Undoing {
public:
    explicit Undoing(Progress* progress) : m_files(progress) {}

    void undo(const Change& change) {
        if (const auto* item = std::get_if<TrashedItem>(&change.former)) {
            const bool isEmpty = putBack(item->place, change);
            m_left.push_back({isEmpty ? fs::path() : item->place, item->note});
        } else if (const auto* link = std::get_if<LinkText>(&change.former)) {
            put(change, [&](const fs::path& temporary) { m_files.createLink(link->target, temporary); });
        } else if (const auto* content = std::get_if<CopyOf>(&change.former)) {
            put(change, [&](const fs::path& temporary) { m_files.copy(content->copy, temporary); });
        } else {
            setAside(change);
        }
        m_folders.insert(files::folderOf(change.path));
    }

    /// Waits for the disk, then removes what isn't needed any more.
    void finish() {
        std::set<dev_t> disks;
        for (const fs::path& folder : m_folders) {
            struct stat status = {};
            if (::stat(folder.c_str(), &status) != 0 || !disks.insert(status.st_dev).second)
                continue;
            // As when something goes to the Trash, the folder alone wouldn't do on every file system.
            if (const int error = files::syncAllWith(folder); error != 0)
                fail("write", folder, error);
        }
        m_aside.clear();
        for (const InTrash& left : m_left) {
            try {
                if (!left.place.empty())
                    m_files.removeTree(left.place);
                if (!left.note.empty())
                    m_files.removeFile(left.note);
            } catch (const fs::filesystem_error&) { // it stays in the Trash
            }
        }
    }

private:
    struct InTrash {
        fs::path place; ///< of what an exchange has put there; empty for nothing
        fs::path note;
    };

    void put(const Change& change, const std::function<void(const fs::path& temporary)>& make) {
        Temporary& temporary = m_aside.emplace_back(change.path);
        files::build(temporary, change.path, make);
        try {
            static_cast<void>(putBack(temporary.path(), change));
        } catch (...) {
            // What is under the temporary name now may be somebody else's.
            if (m_isStuck)
                temporary.setPlaced();
            throw;
        }
    }

    /// Gives `origin` the path of the change. What is there now gets the name of `origin` or a temporary one,
    /// if it still is what it was. Returns whether nothing has the name of `origin` any more.
    bool putBack(const fs::path& origin, const Change& change) {
        if (std::holds_alternative<Nothing>(change.present)) {
            moveBack(origin, change);
            return true;
        }
        const int error = files::exchangeNames(origin, change.path);
        if (error == 0) {
            requireExchanged(origin, change);
            return false;
        }
        if (error != ENOTSUP && error != EXDEV)
            fail("replace", change.path, error);
        Temporary& aside = setAside(change);
        try {
            m_files.move(origin, change.path);
        } catch (...) {
            // It may have moved although the disk reports an error. Then what was there instead can go.
            if (files::renameExclusively(aside.path(), change.path) == 0 || !isGone(origin))
                aside.setPlaced();
            throw;
        }
        return true;
    }

    void moveBack(const fs::path& origin, const Change& change) {
        try {
            m_files.move(origin, change.path);
        } catch (const fs::filesystem_error& error) {
            if (error.code() == std::errc::file_exists)
                throw changed(change.path, change.former);
            throw;
        }
    }

    void requireExchanged(const fs::path& origin, const Change& change) {
        if (isAt(origin, change.present))
            return;
        m_isStuck = files::exchangeNames(origin, change.path) != 0;
        throw changed(change.path, change.former);
    }

    Temporary& setAside(const Change& change) {
        Temporary& aside = m_aside.emplace_back(change.path);
        if (const int error = files::renameExclusively(change.path, aside.path()); error != 0)
            fail("replace", change.path, error);
        if (isAt(aside.path(), change.present))
            return aside;
        static_cast<void>(files::renameExclusively(aside.path(), change.path));
        aside.setPlaced();
        throw changed(change.path, change.former);
    }

    static bool isGone(const fs::path& path) {
        struct stat status = {};
        return !files::isAnything(path, status) && files::meansMissing(errno);
    }

    /// Nobody else knows the path, so what it tells holds.
    static bool isAt(const fs::path& path, const FileState& state) {
        try {
            return stateOf(path) == state;
        } catch (const fs::filesystem_error&) { // not certain
            return false;
        }
    }

    FileManager m_files;
    std::deque<Temporary> m_aside; ///< each removes what has its name when it goes
    std::vector<InTrash> m_left;
    std::set<fs::path> m_folders;
    bool m_isStuck = false;
};

void removeFromTrash(const TrashedItem& item) noexcept {
    try {
        if (identityAt(item.place) != item.identity)
            return;
        FileManager().removeTree(item.place);
        if (!item.note.empty())
            FileManager().removeFile(item.note);
    } catch (const fs::filesystem_error&) {
    }
}

void FileChanges::undo(Progress* progress) const {
    requireUnchanged();
    const std::lock_guard guard(m_mutex);
    Undoing undoing(progress);
    try {
        for (const bool isCopy : {true, false}) { // as long as there is something to copy
            for (const Change& change : m_changes) {
                if (std::holds_alternative<CopyOf>(change.former) == isCopy)
                    undoing.undo(change);
            }
        }
    } catch (...) {
        try {
            undoing.finish();
        } catch (const fs::filesystem_error&) { // report the first error
        }
        throw;
    }
    undoing.finish();
}

} // namespace selvane
