// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "platform/files/FileBatch.h"

#include <sys/stat.h>
#include <utility>

#include "platform/files/FileBatchRound.h"
#include "platform/files/FileCopy.h"
#include "platform/files/FileRemoval.h"
#include "platform/files/Temporary.h"

namespace selvane {

using files::Descriptor;
using files::fail;
using files::Replaces;

namespace {

constexpr std::string_view kTemporaryFolder = "batch-";

/// Removes what killed runs have left in a folder. What can't be removed now waits for the next run.
void removeLeftovers(const std::filesystem::path& folder) {
    const FileManager files;
    const std::string beginning = std::string(FileManager::kTemporaryPrefix).append(kTemporaryFolder);
    for (const std::string& name : files.entriesIfReadable(folder)) {
        try {
            if (name.starts_with(beginning) && files.isFolder(folder / name))
                files.removeTree(folder / name);
        } catch (const std::filesystem::filesystem_error&) {
        }
    }
}

} // namespace

FileBatch::FileBatch(const std::filesystem::path& folder, Progress* progress, FileChanges* changes)
    : m_folder(folder), m_mount(files::mountOf(folder)), m_progress(progress), m_changes(changes),
      m_copier(m_written, progress) {
    removeLeftovers(folder);
}

FileBatch::~FileBatch() {
    try {
        m_copier.stop();
        removeTemporaries();
    } catch (const std::exception&) {
        // Report the error that led here.
    }
}

void FileBatch::copy(const std::filesystem::path& from, const std::filesystem::path& to, Privacy privacy) {
    copyAs(Replaces::nothing, from, to, privacy);
}

void FileBatch::copyOverLink(const std::filesystem::path& from, const std::filesystem::path& link) {
    copyAs(Replaces::link, from, link, Privacy::inherited);
}

void FileBatch::copyFileOverLink(const std::filesystem::path& from, const std::filesystem::path& link) {
    copyAs(Replaces::link, from, true, link, Privacy::inherited);
}

void FileBatch::copyAs(Replaces kind, const std::filesystem::path& from, const std::filesystem::path& to,
                       Privacy privacy) {
    struct stat status = {};
    const bool isKnown = ::lstat(from.c_str(), &status) == 0;
    if (isKnown && S_ISDIR(status.st_mode))
        files::requireOutside("copy", from, to);
    copyAs(kind, from, isKnown && S_ISREG(status.st_mode), to, privacy);
}

void FileBatch::copyAs(Replaces kind, const std::filesystem::path& from, bool isFile,
                       const std::filesystem::path& to, Privacy privacy) {
    const std::filesystem::path temporary = addNew(to, kind);
    try {
        if (isFile)
            m_copier.copyFile(from, temporary, to, privacy);
        else
            m_copier.copy(from, temporary, to, privacy);
    } catch (...) { // half of it may be there
        m_open->fail(m_open->entries.size() - 1, std::current_exception());
        throw;
    }
}

void FileBatch::write(const std::filesystem::path& file, std::function<std::string()> make, Privacy privacy) {
    const std::filesystem::path temporary = addNew(file, Replaces::file);
    const std::size_t position = m_open->entries.size() - 1;
    m_copier.run([this, round = m_open.get(), position, file, temporary, make = std::move(make), privacy] {
        try {
            writeNew(temporary, file, make(), privacy);
        } catch (...) {
            round->fail(position, std::current_exception());
        }
    });
}

void FileBatch::writeNew(const std::filesystem::path& temporary, const std::filesystem::path& target,
                         std::string_view bytes, Privacy privacy) {
    constexpr int kFlags = O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC;
    Descriptor open(::open(temporary.c_str(), kFlags, privacy == Privacy::ownerOnly ? 0600 : 0644));
    int error = open ? files::writeAll(open.get(), bytes) : errno;
    if (error == 0)
        error = m_written.add(std::move(open));
    if (error != 0)
        fail("write", target, error);
    if (m_progress != nullptr)
        m_progress->advance(1, static_cast<std::int64_t>(bytes.size()));
}

void FileBatch::move(const std::filesystem::path& from, const std::filesystem::path& to) {
    if (files::mountOf(files::folderOf(from)) == files::mountOf(files::folderOf(to))) {
        add(to, Replaces::nothing).temporary = from;
        folderAt(files::folderOf(from));
    } else {
        copy(from, to);
        m_originals.push_back(from);
    }
}

FileBatch::Entry& FileBatch::add(const std::filesystem::path& target, Replaces kind) {
    if (m_progress != nullptr && m_progress->isCancelled())
        fail("create", target, ECANCELED);
    if (m_open && m_open->entries.size() >= Round::kMost) {
        close();
        m_copier.run([this] { settleCopied(); });
    }
    if (!m_open) {
        m_open = std::make_shared<Round>();
        m_open->copying = {nullptr, [round = m_open.get()](void*) { round->isCopied = true; }};
        m_copier.keepWhileCopying(m_open->copying);
    }
    Folder& folder = folderAt(files::folderOf(target));
    m_open->entries.push_back({&folder, target.filename().native(), {}, kind});
    ++m_count;
    return m_open->entries.back();
}

std::filesystem::path FileBatch::addNew(const std::filesystem::path& target, Replaces kind) {
    Entry& entry = add(target, kind);
    Folder& folder = *entry.folder;
    if (folder.isElsewhere && folder.temporary.empty())
        folder.temporary = makeTemporary(folder.path, target);
    const std::filesystem::path& temporary = folder.isElsewhere ? folder.temporary : partOfRound(target);
    return entry.temporary = temporary / std::to_string(m_count);
}

/// Each round has a folder of its own: its files get their names while those of the next are made. It is
/// divided, because looking up one name among many takes longer.
const std::filesystem::path& FileBatch::partOfRound(const std::filesystem::path& target) {
    Round& round = *m_open;
    if (round.temporary.empty())
        round.part = round.temporary = makeTemporary(m_folder, target);
    if (++round.inPart > Round::kMostInPart) {
        round.part = round.temporary / ("part-" + std::to_string(m_count));
        round.inPart = 1;
        if (::mkdir(round.part.c_str(), S_IRWXU) != 0)
            fail("create", target, errno);
    }
    return round.part;
}

FileBatch::Folder& FileBatch::folderAt(const std::filesystem::path& path) {
    Folder*& known = m_places[path.native()];
    if (known == nullptr) {
        const bool isElsewhere = files::mountOf(path) != m_mount;
        if (isElsewhere)
            removeLeftovers(path);
        known = &m_folders.emplace_back(Folder{path, isElsewhere});
    }
    return *known;
}

std::filesystem::path FileBatch::makeTemporary(const std::filesystem::path& in,
                                               const std::filesystem::path& target) {
    const std::string random = files::newSibling("").filename().native();
    std::string name(FileManager::kTemporaryPrefix);
    name.append(kTemporaryFolder).append(random, FileManager::kTemporaryPrefix.size());
    const std::filesystem::path path = in / name;
    if (::mkdir(path.c_str(), S_IRWXU) != 0)
        fail("create", target, errno);
    {
        const std::lock_guard guard(m_mutex);
        m_temporaries.insert(path);
    }
    const Descriptor folder(::open(path.c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC));
    if (!folder)
        fail("create", target, errno);
    files::dropInheritedAccess(folder.get()); // so nothing inside inherits it either
    return path;
}

/// Nothing more is added to the open round.
void FileBatch::close() {
    const std::lock_guard guard(m_mutex);
    m_closed.push_back(m_open);
    m_copier.keepWhileCopying(nullptr);
    m_open->copying.reset();
    m_open.reset();
}

} // namespace selvane
