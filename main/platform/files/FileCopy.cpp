// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "platform/files/FileCopy.h"

#include <array>
#include <climits>
#include <string>
#include <sys/stat.h>
#include <vector>

#include "platform/files/CopyCrew.h"
#include "platform/files/FolderTrail.h"

namespace selvane::files {
namespace {

/// One entry to copy: its name in the current folder on each side. The two differ only at the top.
struct Item {
    const char* from;
    const char* to;
};

unsigned char entryType(const struct stat& status) {
    return static_cast<unsigned char>(IFTODT(status.st_mode));
}

/// Copies a tree without recursion and with few open files, whatever its depth. It copies a folder's files
/// while listing it, or has the crew copy them, so it keeps only the names of subfolders.
class TreeCopy {
public:
    TreeCopy(const std::filesystem::path& from, const std::filesystem::path& named, Privacy privacy,
             CopyCrew& crew)
        : m_from(from), m_named(named), m_privacy(privacy), m_crew(crew) {}

    void run(const std::filesystem::path& to);
    /// The same for a file.
    void runFile(const std::filesystem::path& to) { copyFile({m_from.c_str(), to.c_str()}); }

private:
    struct Level {
        std::string name;
        struct stat status;
        std::vector<std::string> folders;    ///< subfolders still to be copied
        std::shared_ptr<FolderPair> crews{}; ///< if the crew copies files in it
    };

    /// The path, in the user's terms, of an entry in the current folder, or of that folder if there is no
    /// name.
    std::filesystem::path below(const std::filesystem::path& top, const char* name) const;
    [[noreturn]] void failFrom(const char* name, int error) const {
        fail("copy", below(m_from, name), error);
    }
    [[noreturn]] void failTo(const char* name, int error) const { fail("copy", below(m_named, name), error); }
    [[noreturn]] void failBoth(const char* name, int error) const {
        fail("copy", below(m_from, name), below(m_named, name), error);
    }

    struct stat statusOf(const Item& item) const;
    void copyEntry(const Item& item, unsigned char type);
    void copyFile(const Item& item);
    std::shared_ptr<FolderPair> pairForCrew();
    void copyLink(const Item& item);
    void copySpecial(const Item& item, const struct stat& status);
    void setTimesOfEntry(const Item& item, const struct stat& status) const;
    void enterFolder(const Item& item);
    Descriptor makeFolder(const Item& item);
    void finishFolder();

    const std::filesystem::path& m_from;
    const std::filesystem::path& m_named;
    Privacy m_privacy;
    CopyCrew& m_crew;
    FolderTrail m_source;
    FolderTrail m_target;
    std::vector<Level> m_levels; ///< the open folders, starting at the top
    struct stat m_targetTop = {};
};

void TreeCopy::run(const std::filesystem::path& to) {
    const Item top = {m_from.c_str(), to.c_str()};
    const unsigned char type = entryType(statusOf(top));
    if (type != DT_DIR) {
        copyEntry(top, type);
        return;
    }
    enterFolder(top);
    while (!m_levels.empty()) {
        Level& level = m_levels.back();
        if (level.folders.empty()) {
            finishFolder();
        } else {
            const std::string name = std::move(level.folders.back());
            level.folders.pop_back();
            enterFolder({name.c_str(), name.c_str()});
        }
    }
}

std::filesystem::path TreeCopy::below(const std::filesystem::path& top, const char* name) const {
    std::filesystem::path path = top;
    for (std::size_t i = 1; i < m_levels.size(); ++i)
        path /= m_levels[i].name;
    return m_levels.empty() || *name == '\0' ? path : path / name;
}

struct stat TreeCopy::statusOf(const Item& item) const {
    struct stat status = {};
    if (::fstatat(m_source.current(), item.from, &status, AT_SYMLINK_NOFOLLOW) != 0)
        failFrom(item.from, errno);
    return status;
}

void TreeCopy::copyEntry(const Item& item, unsigned char type) {
    if (type == DT_UNKNOWN)
        type = entryType(statusOf(item));
    if (type == DT_REG)
        copyFile(item);
    else if (type == DT_DIR)
        m_levels.back().folders.emplace_back(item.from);
    else if (type == DT_LNK)
        copyLink(item);
    else
        copySpecial(item, statusOf(item));
}

void TreeCopy::copyFile(const Item& item) {
    const bool isAlone = m_levels.empty();
    const Privacy privacy = isAlone ? m_privacy : Privacy::inherited;
    if (m_crew.takesFiles()) {
        m_crew.add(isAlone ? nullptr : pairForCrew(), item.from, item.to,
                   isAlone ? m_named.native() : item.to, privacy);
        return;
    }
    const CopyFailure failure =
        m_crew.copyNow({m_source.current(), m_target.current(), item.from, item.to, privacy, isAlone});
    if (failure.error == 0)
        return;
    if (failure.side == CopyFailure::Side::both)
        failBoth(item.from, failure.error);
    if (failure.side == CopyFailure::Side::from)
        failFrom(item.from, failure.error);
    failTo(item.to, failure.error);
}

/// The current folder, kept open for the crew.
std::shared_ptr<FolderPair> TreeCopy::pairForCrew() {
    Level& level = m_levels.back();
    if (!level.crews) {
        auto pair = std::make_shared<FolderPair>();
        pair->source = Descriptor(::fcntl(m_source.current(), F_DUPFD_CLOEXEC, 0));
        pair->target = Descriptor(::fcntl(m_target.current(), F_DUPFD_CLOEXEC, 0));
        if (!pair->source || !pair->target)
            failFrom("", errno);
        pair->status = level.status;
        pair->from = below(m_from, "");
        pair->named = below(m_named, "");
        level.crews = std::move(pair);
    }
    return level.crews;
}

void TreeCopy::copyLink(const Item& item) {
    std::array<char, PATH_MAX> text;
    const struct stat status = statusOf(item);
    const ssize_t size = ::readlinkat(m_source.current(), item.from, text.data(), text.size());
    if (size < 0 || static_cast<std::size_t>(size) == text.size())
        failFrom(item.from, size < 0 ? errno : ENAMETOOLONG);
    text[static_cast<std::size_t>(size)] = '\0';
    if (::symlinkat(text.data(), m_target.current(), item.to) != 0)
        failTo(item.to, errno);
    setTimesOfEntry(item, status);
}

/// Creates FIFOs, sockets and devices anew; never opens them.
void TreeCopy::copySpecial(const Item& item, const struct stat& status) {
    int error = makeSpecial(m_target.current(), item.to, status);
    if (error == 0 && ::fchmodat(m_target.current(), item.to, copiedMode(status), 0) != 0)
        error = errno;
    if (error != 0)
        failTo(item.to, error);
    setTimesOfEntry(item, status);
}

void TreeCopy::setTimesOfEntry(const Item& item, const struct stat& status) const {
    const std::array<timespec, 2> times = timesOf(status);
    if (::utimensat(m_target.current(), item.to, times.data(), AT_SYMLINK_NOFOLLOW) != 0)
        failTo(item.to, errno);
    m_crew.advance();
}

void TreeCopy::enterFolder(const Item& item) {
    Descriptor from(::openat(m_source.current(), item.from, O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC));
    struct stat status = {};
    if (!from || ::fstat(from.get(), &status) != 0)
        failFrom(item.from, errno);
    // A mount, or a folder moved meanwhile, can put the copy inside its source; it would never end.
    if (!m_levels.empty() && status.st_dev == m_targetTop.st_dev && status.st_ino == m_targetTop.st_ino)
        fail("copy", m_from, m_named, EINVAL);
    Descriptor to = makeFolder(item);
    int error = m_source.enter(std::move(from));
    if (error == 0)
        error = m_target.enter(std::move(to));
    if (error != 0)
        failFrom(item.from, error);
    m_levels.push_back({item.from, status, {}});
    error = forEachEntry(m_source.current(), [this](const char* name, unsigned char type) {
        m_crew.requireWanted(m_from);
        copyEntry({name, name}, type);
    });
    if (error != 0)
        failFrom("", error);
}

/// Only the owner can enter it until the copy is complete.
Descriptor TreeCopy::makeFolder(const Item& item) {
    if (::mkdirat(m_target.current(), item.to, S_IRWXU) != 0)
        failTo(item.to, errno);
    Descriptor folder(::openat(m_target.current(), item.to, O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC));
    if (!folder)
        failTo(item.to, errno);
    if (m_levels.empty()) {
        if (::fstat(folder.get(), &m_targetTop) != 0)
            failTo(item.to, errno);
        dropInheritedAccess(folder.get()); // so nothing inside inherits it either
    }
    return folder;
}

void TreeCopy::finishFolder() {
    // Go up first: the final mode may make that impossible.
    Descriptor from;
    Descriptor to;
    int error = m_source.leave(from);
    if (error == 0)
        error = m_target.leave(to);
    if (error != 0)
        failFrom("", error);
    const Level level = std::move(m_levels.back());
    m_levels.pop_back();
    if (level.crews) {
        m_crew.release(*level.crews);
        return;
    }
    error = finishCopy(from.get(), std::move(to), level.status, Privacy::inherited, m_crew.written());
    if (error != 0)
        failTo(level.name.c_str(), error);
    m_crew.advance();
}

} // namespace

void copyTree(const std::filesystem::path& from, const std::filesystem::path& to,
              const std::filesystem::path& named, Privacy privacy, CopyCrew& crew) {
    TreeCopy(from, named, privacy, crew).run(to);
}

void copyFile(const std::filesystem::path& from, const std::filesystem::path& to,
              const std::filesystem::path& named, Privacy privacy, CopyCrew& crew) {
    TreeCopy(from, named, privacy, crew).runFile(to);
}

} // namespace selvane::files
