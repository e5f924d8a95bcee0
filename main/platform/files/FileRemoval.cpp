// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "platform/files/FileRemoval.h"

#include <string>
#include <sys/stat.h>
#include <tuple>
#include <vector>

#include "platform/files/FileCopy.h"
#include "platform/files/FolderTrail.h"
#include "platform/files/Temporary.h"
#include "platform/files/Trash.h"

namespace selvane::files {
namespace {

/// How many times to try to empty a folder: on some file systems, a listing skips entries while others are
/// being removed.
constexpr int kPasses = 3;

/// Removes a folder without recursion and with few open files, whatever its depth.
class TreeRemoval {
public:
    explicit TreeRemoval(const std::filesystem::path& named) : m_named(named) {}

    void run(const std::filesystem::path& folder) {
        enter(folder.string(), 1);
        while (!m_levels.empty()) {
            Level& level = m_levels.back();
            if (level.folders.empty()) {
                finish();
            } else {
                std::string name = std::move(level.folders.back());
                level.folders.pop_back();
                enter(std::move(name), 1);
            }
        }
    }

private:
    struct Level {
        std::string name;
        int pass;
        std::vector<std::string> folders; ///< subfolders still to be removed
    };

    /// Names an entry in the current folder, or that folder itself if the name is empty.
    [[noreturn]] void failAt(const char* name, int error) const {
        std::filesystem::path path = m_named;
        for (std::size_t i = 1; i < m_levels.size(); ++i)
            path /= m_levels[i].name;
        fail("remove", m_levels.empty() || *name == '\0' ? path : path / name, error);
    }

    Descriptor open(const std::string& name) const;
    void enter(std::string name, int pass);
    void removeEntry(const char* name, unsigned char type);
    void finish();

    const std::filesystem::path& m_named;
    FolderTrail m_trail;
    std::vector<Level> m_levels;
};

Descriptor TreeRemoval::open(const std::string& name) const {
    constexpr int kFlags = O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC;
    Descriptor folder(::openat(m_trail.current(), name.c_str(), kFlags));
    if (!folder && errno == EACCES) {
        std::ignore = ::fchmodat(m_trail.current(), name.c_str(), S_IRWXU, AT_SYMLINK_NOFOLLOW);
        folder = Descriptor(::openat(m_trail.current(), name.c_str(), kFlags));
    }
    if (!folder)
        failAt(name.c_str(), errno);
    return folder;
}

void TreeRemoval::enter(std::string name, int pass) {
    Descriptor folder = open(name);
    struct stat status = {};
    if (::fstat(folder.get(), &status) == 0 && (status.st_mode & S_IRWXU) != S_IRWXU) {
        // If this fails, removing an entry fails too and reports why.
        static_cast<void>(::fchmod(folder.get(), (status.st_mode & ALLPERMS) | S_IRWXU));
    }
    if (const int error = m_trail.enter(std::move(folder)); error != 0)
        failAt(name.c_str(), error);
    m_levels.push_back({std::move(name), pass, {}});
    const int error = forEachEntry(
        m_trail.current(), [this](const char* entry, unsigned char type) { removeEntry(entry, type); });
    if (error != 0)
        failAt("", error);
}

void TreeRemoval::removeEntry(const char* name, unsigned char type) {
    if (type == DT_UNKNOWN) {
        struct stat status = {};
        if (::fstatat(m_trail.current(), name, &status, AT_SYMLINK_NOFOLLOW) == 0 && S_ISDIR(status.st_mode))
            type = DT_DIR;
    }
    if (type == DT_DIR)
        m_levels.back().folders.emplace_back(name);
    else if (::unlinkat(m_trail.current(), name, 0) != 0 && errno != ENOENT)
        failAt(name, errno);
}

void TreeRemoval::finish() {
    Descriptor left;
    if (const int error = m_trail.leave(left); error != 0)
        failAt("", error);
    left.close();
    Level level = std::move(m_levels.back());
    m_levels.pop_back();
    if (::unlinkat(m_trail.current(), level.name.c_str(), AT_REMOVEDIR) == 0 || errno == ENOENT)
        return;
    const int error = errno;
    if ((error != ENOTEMPTY && error != EEXIST) || level.pass == kPasses)
        failAt(level.name.c_str(), error);
    enter(std::move(level.name), level.pass + 1);
}

/// Whether `name` is a symbolic link. Returns 0 or the error.
int look(int folder, const std::filesystem::path& name, bool& isLink) {
    struct stat status = {};
    if (::fstatat(folder, name.c_str(), &status, AT_SYMLINK_NOFOLLOW) != 0)
        return errno;
    isLink = S_ISLNK(status.st_mode);
    return 0;
}

} // namespace

bool removeLink(int folder, const std::filesystem::path& name, const std::filesystem::path& named) {
    bool isLink = false;
    if (const int error = look(folder, name, isLink); error != 0 && !meansMissing(error))
        fail("remove", named, error);
    if (!isLink)
        return false;
    // Another program may have replaced the link since. Nobody else knows the new name, so that look holds.
    const std::filesystem::path aside = newSibling(name);
    int error = renameExclusively(folder, name, folder, aside);
    if (error == ENOENT)
        return false;
    if (error != 0)
        fail("remove", named, error);
    error = look(folder, aside, isLink);
    if (error == 0 && isLink) {
        if (::unlinkat(folder, aside.c_str(), 0) == 0)
            return true;
        error = errno;
    }
    // If the name is taken again, what has it is newer.
    if (renameExclusively(folder, aside, folder, name) != 0)
        moveToTrash(named.parent_path() / aside.filename());
    if (error != 0)
        fail("remove", named, error);
    return false;
}

void removeTree(const std::filesystem::path& path, const std::filesystem::path& named) {
    struct stat status = {};
    if (::lstat(path.c_str(), &status) != 0) {
        if (errno != ENOENT && errno != ENOTDIR)
            fail("remove", named, errno);
    } else if (S_ISDIR(status.st_mode)) {
        TreeRemoval(named).run(path);
    } else if (::unlink(path.c_str()) != 0 && errno != ENOENT) {
        fail("remove", named, errno);
    }
}

} // namespace selvane::files
