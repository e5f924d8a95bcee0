// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "platform/files/FileBatch.h"

#include <algorithm>
#include <cstdio>
#include <sys/stat.h>

#include "platform/files/FileCopy.h"
#include "platform/files/FileRemoval.h"
#include "platform/files/Temporary.h"

namespace selvane {

using files::Descriptor;
using files::fail;
using files::isLink;

namespace {

/// With so many, their names take about a megabyte.
constexpr std::size_t kMost = 4096;

/// What has become of a replacement: the error, if any, and whether something of the user's has the temporary
/// name.
struct Placing {
    int error = 0;
    bool mustKeep = false;
};

/// Gives `temporary` the name of the link at `target`, and the link a temporary name.
Placing placeOverLink(const std::filesystem::path& temporary, const std::filesystem::path& target) {
    if (const int error = files::exchangeNames(temporary, target); error != ENOTSUP) {
        if (error != 0 || isLink(temporary))
            return {error};
        // Something of the user's has replaced the link meanwhile.
        return {EEXIST, files::exchangeNames(temporary, target) != 0};
    }
    // Where names can't be exchanged, neither is there for a moment.
    const std::filesystem::path aside = temporary.native() + "-link";
    if (const int error = files::renameExclusively(target, aside); error != 0)
        return {error};
    const int error = isLink(aside) ? files::renameExclusively(temporary, target) : EEXIST;
    return {error, error != 0 && files::renameExclusively(aside, target) != 0};
}

} // namespace

FileBatch::~FileBatch() {
    try {
        m_copier.stop();
        removeTemporaries();
    } catch (const std::exception&) {
        // Report the error that led here.
    }
}

void FileBatch::copy(const std::filesystem::path& from, const std::filesystem::path& to, Privacy privacy) {
    copyAs(Kind::isNew, from, to, privacy);
}

void FileBatch::copyOverLink(const std::filesystem::path& from, const std::filesystem::path& link) {
    copyAs(Kind::overLink, from, link, Privacy::inherited);
}

void FileBatch::copyAs(Kind kind, const std::filesystem::path& from, const std::filesystem::path& to,
                       Privacy privacy) {
    struct stat status = {};
    if (::lstat(from.c_str(), &status) == 0 && S_ISDIR(status.st_mode))
        files::requireOutside("copy", from, to);
    m_copier.copy(from, addNew(to, kind), to, privacy);
}

void FileBatch::write(const std::filesystem::path& file, std::string_view bytes, Privacy privacy) {
    const std::filesystem::path temporary = addNew(file, Kind::overFile);
    constexpr int kFlags = O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC;
    Descriptor open(::open(temporary.c_str(), kFlags, privacy == Privacy::ownerOnly ? 0600 : 0644));
    int error = open ? files::writeAll(open.get(), bytes) : errno;
    if (error == 0)
        error = m_written.add(std::move(open));
    if (error != 0)
        fail("write", file, error);
    if (m_progress != nullptr)
        m_progress->advance(1, static_cast<std::int64_t>(bytes.size()));
}

void FileBatch::move(const std::filesystem::path& from, const std::filesystem::path& to) {
    struct stat origin = {};
    struct stat folder = {};
    if (::lstat(from.c_str(), &origin) != 0)
        fail("move", from, errno);
    if (::stat(files::folderOf(to).c_str(), &folder) != 0)
        fail("move", to, errno);
    if (origin.st_dev == folder.st_dev) {
        add(to, Kind::isNew).temporary = from;
        folderOf(from);
    } else {
        copy(from, to);
        m_originals.push_back(from);
    }
}

FileBatch::Entry& FileBatch::add(const std::filesystem::path& target, Kind kind) {
    if (m_entries.size() >= kMost)
        finish();
    if (m_progress != nullptr && m_progress->isCancelled())
        fail("create", target, ECANCELED);
    folderOf(target);
    m_entries.push_back({target, {}, kind});
    return m_entries.back();
}

std::filesystem::path FileBatch::addNew(const std::filesystem::path& target, Kind kind) {
    Entry& entry = add(target, kind);
    Folder& folder = folderOf(target);
    if (folder.temporary.empty()) {
        const std::filesystem::path temporary = files::newSibling(target);
        if (::mkdir(temporary.c_str(), S_IRWXU) != 0)
            fail("create", target, errno);
        folder.temporary = temporary;
    }
    entry.temporary = folder.temporary / std::to_string(m_entries.size());
    return entry.temporary;
}

FileBatch::Folder& FileBatch::folderOf(const std::filesystem::path& target) {
    const std::filesystem::path path = files::folderOf(target);
    // Targets in one folder mostly follow each other.
    const auto known = std::find_if(m_folders.rbegin(), m_folders.rend(),
                                    [&](const Folder& folder) { return folder.path == path; });
    if (known != m_folders.rend())
        return *known;
    m_folders.push_back({path, {}});
    return m_folders.back();
}

void FileBatch::finish() {
    if (m_entries.empty())
        return;
    m_copier.finish();
    m_written.waitFor(m_folders.front().path);
    for (const Entry& entry : m_entries)
        place(entry);
    m_entries.clear();
    for (const Folder& folder : m_folders) {
        if (const int error = files::syncFolder(folder.path); error != 0)
            fail("write", folder.path, error);
    }
    removeOriginals();
    removeTemporaries();
}

void FileBatch::place(const Entry& entry) {
    Placing placing;
    if (entry.kind == Kind::overLink)
        placing = placeOverLink(entry.temporary, entry.target);
    else if (entry.kind == Kind::isNew)
        placing.error = files::renameExclusively(entry.temporary, entry.target);
    else if (::rename(entry.temporary.c_str(), entry.target.c_str()) != 0)
        placing.error = errno;
    if (placing.mustKeep)
        m_folders.clear();
    if (placing.error != 0)
        fail("create", entry.target, placing.error);
}

/// What was copied to another file system counts as moved now that its copy is on the disk.
void FileBatch::removeOriginals() {
    while (!m_originals.empty()) {
        const std::filesystem::path original = std::move(m_originals.back());
        m_originals.pop_back();
        files::removeTree(original, original);
    }
}

void FileBatch::removeTemporaries() {
    while (!m_folders.empty()) {
        const Folder folder = std::move(m_folders.back());
        m_folders.pop_back();
        if (!folder.temporary.empty())
            files::removeTree(folder.temporary, folder.path);
    }
}

} // namespace selvane
