// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include <cstdio>
#include <string>
#include <sys/stat.h>

#include "platform/files/DiskSync.h"
#include "platform/files/FileChanges.h"
#include "platform/files/FileCopier.h"
#include "platform/files/FileCopy.h"
#include "platform/files/FileManager.h"
#include "platform/files/FileRemoval.h"
#include "platform/files/Temporary.h"
#include "platform/files/TreeComparison.h"

/// The operations of `FileManager` that build something new beside its final place.
namespace selvane {

using files::build;
using files::Descriptor;
using files::fail;
using files::inherit;
using files::isAnything;
using files::isLink;
using files::newSibling;
using files::requireOutside;
using files::Temporary;

namespace {

/// A path that ends in "/" names a folder; its siblings are those of that folder.
std::filesystem::path withoutEndingSlash(const std::filesystem::path& path) {
    return path.has_filename() ? path : path.parent_path();
}

void copyBeside(const std::filesystem::path& from, const std::filesystem::path& to,
                const Temporary& temporary, Privacy privacy, const FileManager& files) {
    struct stat status = {};
    if (isAnything(to, status))
        fail("copy", to, EEXIST);
    if (isAnything(from, status) && S_ISDIR(status.st_mode))
        requireOutside("copy", from, to);
    FileCopier copier(files);
    copier.copy(from, temporary.path(), to, privacy);
    copier.finish();
}

/// Removes it whole or, if its folder is read-only, not at all; then returns the error.
int removeInOneStep(const std::filesystem::path& path) {
    const std::filesystem::path aside = newSibling(path);
    const int error = files::renameExclusively(path, aside);
    // Overlay file systems can't rename some folders at all.
    const bool isAside = error == 0;
    if (!isAside && error != EXDEV)
        return error;
    files::removeTree(isAside ? aside : path, path);
    return 0;
}
/// A second name for a file that goes to the Trash, for as long as nothing has taken its place. If Selvane is
/// killed then, `FileManager::recoverReplaced` finds it there.
class KeptFile {
public:
    explicit KeptFile(const std::filesystem::path& target) : m_target(target), m_path(pathFor(target)) {
        struct stat status = {};
        if (::lstat(target.c_str(), &status) != 0)
            fail("replace", target, errno);
        if (!S_ISREG(status.st_mode))
            return;
        if (::link(target.c_str(), m_path.c_str()) != 0) // not every file system has hard links
            FileManager().copy(target, m_path);
        m_isKept = true;
    }
    KeptFile(const KeptFile&) = delete;
    KeptFile& operator=(const KeptFile&) = delete;
    ~KeptFile() {
        struct stat status = {};
        if (m_isKept && isAnything(m_target, status))
            ::unlink(m_path.c_str());
    }

    /// After a failure: the file is also in the Trash, but its place is free.
    void putBack() {
        if (m_isKept)
            m_isKept = files::renameExclusively(m_path, m_target) != 0;
    }

    /// Something new has its place.
    void drop() {
        if (m_isKept)
            ::unlink(m_path.c_str());
        m_isKept = false;
    }

    static std::filesystem::path pathFor(const std::filesystem::path& target) {
        return target.parent_path() /
               (std::string(FileManager::kTemporaryPrefix) + "kept-" + target.filename().native());
    }

private:
    std::filesystem::path m_target;
    std::filesystem::path m_path;
    bool m_isKept = false;
};

/// Replaces a link by `temporary` where names can't be exchanged. For a moment, neither is there.
void replaceLinkInSteps(const std::filesystem::path& link, Temporary& temporary) {
    const std::filesystem::path aside = newSibling(link);
    if (const int error = files::renameExclusively(link, aside); error != 0)
        fail("replace link", link, error);
    const int error = isLink(aside) ? files::renameExclusively(temporary.path(), link) : EEXIST;
    if (error != 0) {
        static_cast<void>(files::renameExclusively(aside, link));
        fail("replace link", link, error);
    }
    temporary.setPlaced();
    ::unlink(aside.c_str());
}

} // namespace

void FileManager::write(const std::filesystem::path& file, std::string_view bytes, Privacy privacy) const {
    Temporary temporary(file);
    struct stat old = {};
    if (!isAnything(file, old) && !files::meansMissing(errno))
        fail("write", file, errno);
    const bool replaces = S_ISREG(old.st_mode);
    const mode_t mode = replaces || privacy == Privacy::ownerOnly ? 0600 : 0644;
    Descriptor open(
        ::open(temporary.path().c_str(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, mode));
    if (!open)
        fail("write", file, errno);
    if (const int error = files::writeAll(open.get(), bytes); error != 0)
        fail("write", file, error);
    if (replaces)
        inherit(open.get(), file, old.st_mode, privacy);
    // A power cut must not leave the name with half the content.
    int error = 0;
    if (m_written != nullptr) {
        error = m_written->add(std::move(open));
    } else {
        error = files::syncOne(open.get());
        if (const int closing = open.closeReporting(); error == 0)
            error = closing;
    }
    if (error == 0 && ::rename(temporary.path().c_str(), file.c_str()) != 0)
        error = errno;
    if (error != 0)
        fail("write", file, error);
    temporary.setPlaced();
    waitForPlaceOf(file);
}

void FileManager::copy(const std::filesystem::path& from, const std::filesystem::path& to,
                       Privacy privacy) const {
    const std::filesystem::path origin = withoutEndingSlash(from);
    const std::filesystem::path target = withoutEndingSlash(to);
    Temporary temporary(target);
    copyBeside(origin, target, temporary, privacy, *this);
    temporary.place(target);
    waitForPlaceOf(target);
}

void FileManager::move(const std::filesystem::path& from, const std::filesystem::path& to) const {
    const std::filesystem::path origin = withoutEndingSlash(from);
    const std::filesystem::path target = withoutEndingSlash(to);
    int error = files::renameExclusively(origin, target);
    if (error == 0) {
        try {
            waitForPlaceOf(target);
            if (files::folderOf(origin) != files::folderOf(target))
                waitForPlaceOf(origin);
        } catch (...) { // what is reported as failed stays where it was
            static_cast<void>(files::renameExclusively(target, origin));
            throw;
        }
        return;
    }
    if (error == EINVAL && isFolder(origin))
        requireOutside("move", origin, target);
    if (error == EINVAL)
        fail("move", target, error); // the file system doesn't allow this name
    if (error != EXDEV)
        fail("move", origin, target, error);
    Temporary copied(target);
    copyBeside(origin, target, copied, Privacy::inherited, FileManager(m_progress));
    // Place the target first: whatever happens next, the content keeps its name in one of the two places.
    copied.place(target);
    error = files::syncFolder(files::folderOf(target));
    if (error != 0) {
        copied.takeBack(target);
        fail("move", target, error);
    }
    error = removeInOneStep(origin);
    if (error != 0) {
        copied.takeBack(target);
        fail("move", origin, error);
    }
    waitForPlaceOf(origin);
}

bool FileManager::completeMove(const std::filesystem::path& from, const std::filesystem::path& to) const {
    const std::filesystem::path origin = withoutEndingSlash(from);
    if (!files::isCopy(origin, withoutEndingSlash(to)))
        return false;
    if (const int error = removeInOneStep(origin); error != 0)
        fail("move", origin, error);
    waitForPlaceOf(origin);
    return true;
}

void FileManager::replaceTrashing(
    const std::filesystem::path& path,
    const std::function<void(const std::filesystem::path& temporary)>& make) const {
    const std::filesystem::path target = withoutEndingSlash(path);
    recoverReplaced(target);
    Temporary temporary(target);
    build(temporary, target, make);
    files::FileState present =
        m_changes == nullptr ? files::Nothing{} : m_changes->stateOfNew(temporary.path());
    if (!exists(target)) {
        temporary.place(target);
        if (m_changes != nullptr)
            m_changes->add(target, files::Nothing{}, std::move(present));
        return waitForPlaceOf(target);
    }
    KeptFile kept(target);
    try {
        const auto old = discard(target);
        temporary.place(target);
        if (m_changes != nullptr)
            m_changes->addTrashed(target, old, std::move(present));
        waitForPlaceOf(target);
        kept.drop();
    } catch (const std::filesystem::filesystem_error&) {
        kept.putBack();
        throw;
    }
}

void FileManager::recoverReplaced(const std::filesystem::path& path) const {
    const std::filesystem::path kept = KeptFile::pathFor(path);
    struct stat old = {};
    struct stat present = {};
    if (::lstat(kept.c_str(), &old) != 0) {
        if (errno != ENOENT && errno != ENOTDIR && errno != ENAMETOOLONG)
            fail("look up", kept, errno);
        return;
    }
    if (S_ISREG(old.st_mode) && files::renameExclusively(kept, path) == 0)
        return;
    if (isAnything(path, present) && present.st_dev == old.st_dev && present.st_ino == old.st_ino)
        removeFile(kept);
    else
        discard(kept);
}

void FileManager::replaceLink(const std::filesystem::path& link,
                              const std::function<void(const std::filesystem::path& temporary)>& make) const {
    const std::filesystem::path place = withoutEndingSlash(link);
    if (!isLink(place))
        fail("replace link", place, exists(place) ? EEXIST : ENOENT);
    Temporary temporary(place);
    build(temporary, place, make);
    // A plain rename can't replace a link by a folder.
    const int error = files::exchangeNames(temporary.path(), place);
    if (error == ENOTSUP) {
        replaceLinkInSteps(place, temporary);
    } else if (error != 0) {
        fail("replace link", place, error);
    } else if (!isLink(temporary.path())) {
        // Something of the user's has replaced the link meanwhile; put it back or at least keep it.
        if (files::exchangeNames(temporary.path(), place) != 0)
            temporary.setPlaced();
        fail("replace link", place, EEXIST);
    }
    // Otherwise the old link now has the temporary name and is removed with it.
    waitForPlaceOf(place);
}

} // namespace selvane
