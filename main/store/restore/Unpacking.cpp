// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "store/restore/Unpacking.h"

#include <algorithm>
#include <functional>
#include <sys/stat.h>

#include "model/LauncherError.h"
#include "platform/files/Descriptor.h"
#include "platform/files/Progress.h"
#include "platform/files/Temporary.h"
#include "platform/text/Text.h"

namespace selvane {
namespace {

namespace fs = std::filesystem;

using files::fail;
using EntryKind = ArchivedEntry::Kind;

constexpr std::uint64_t kLongestMoved = std::uint64_t{64} << 20; ///< bytes of a text whose paths are moved

bool isIn(const fs::path& path, const fs::path& folder) {
    return path == folder || path.native().starts_with(folder.native() + "/");
}

std::array<timespec, 2> timesOf(const ArchiveEntry& entry) {
    timespec time = {};
    time.tv_sec = static_cast<time_t>(entry.modified);
    return {time, time};
}

/// Whether ".." occurs only in front, where no link of the archive can stand before it.
bool climbsOnlyFirst(const fs::path& path) {
    bool isBelow = false;
    for (const fs::path& part : path) {
        if (part == "..") {
            if (isBelow)
                return false;
        } else if (part != ".") {
            isBelow = true;
        }
    }
    return true;
}

} // namespace

LinkReach reachOf(const fs::path& path, const std::string& target, const SavedPlaces& places) {
    if (target.empty() || !climbsOnlyFirst(target))
        return LinkReach::outside;
    const fs::path end = (path.parent_path() / target).lexically_normal();
    for (const fs::path& own : {places.configuration, places.desktopData, places.root}) {
        if (isIn(end, own))
            return LinkReach::own;
    }
    return end == places.globalState ? LinkReach::own
                                     : (isIn(end, places.home) ? LinkReach::home : LinkReach::outside);
}

Unpacking::Unpacking(const ArchiveListing& listing, const std::vector<TreeToRestore>& trees,
                     const SavedPlaces& places, const std::vector<PathMove>& moves, Progress* progress)
    : m_listing(listing), m_places(places), m_moves(moves), m_progress(progress) {
    for (const TreeToRestore& tree : trees)
        m_trees.emplace(tree.tree.archived, &tree);
}

/// The tree that an entry is in; null if it isn't restored.
const TreeToRestore* Unpacking::treeOf(const std::string& name) const {
    for (std::size_t end = name.size(); end != name.npos && end > 0; end = name.rfind('/', end - 1)) {
        if (const auto tree = m_trees.find(name.substr(0, end)); tree != m_trees.end())
            return tree->second;
    }
    return nullptr;
}

void Unpacking::run(const fs::path& archive) {
    ArchiveReader reader(archive);
    std::size_t count = 0;
    while (const auto entry = reader.next()) {
        const auto known = m_listing.entries().find(entry->name);
        if (known == m_listing.entries().end() || known->second.kind != entry->kind ||
            (entry->kind == EntryKind::file && known->second.size != entry->size) ||
            known->second.target != entry->target)
            throw LauncherError("L'archivio è cambiato nel frattempo: " + text::singleLine(archive.string()));
        ++count;
        if (const TreeToRestore* const tree = treeOf(entry->name))
            unpack(reader, known->second, *tree);
    }
    if (count != m_listing.entries().size())
        throw LauncherError("L'archivio è cambiato nel frattempo: " + text::singleLine(archive.string()));
    makeLinks();
    finishFolders();
    m_written.waitFor(archive);
}

void Unpacking::unpack(ArchiveReader& reader, const ArchiveEntry& entry, const TreeToRestore& tree) {
    const std::string below =
        entry.name == tree.tree.archived ? "" : entry.name.substr(tree.tree.archived.size() + 1);
    const fs::path path = below.empty() ? tree.temporary : tree.temporary / below;
    const fs::path finalPath = below.empty() ? tree.tree.target : tree.tree.target / below;
    const FileManager files;
    files.createFolders(entry.kind == EntryKind::folder ? path : path.parent_path(), Privacy::ownerOnly);
    if (entry.kind == EntryKind::folder)
        m_folders.push_back({path, &entry, finalPath});
    else if (entry.kind == EntryKind::link)
        m_links.push_back({path, &entry, finalPath});
    else
        unpackFile(reader, entry, path, pathTextIn(tree.kind, below));
    if (m_progress != nullptr) {
        m_progress->advance(1, 0);
        m_progress->requireWanted();
    }
}

void Unpacking::unpackFile(ArchiveReader& reader, const ArchiveEntry& entry, const fs::path& path,
                           PathText text) {
    files::Descriptor file(::open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC,
                                  static_cast<mode_t>(entry.mode & 0777U)));
    if (!file)
        fail("unpack", path, errno);
    const auto write = [&](std::string_view bytes) {
        if (const int error = files::writeAll(file.get(), bytes); error != 0)
            fail("unpack", path, error);
    };
    const bool isMoved = text != PathText::none && !m_moves.empty() && entry.size <= kLongestMoved;
    std::string whole;
    readGuarded(reader, entry, [&](std::string_view bytes) {
        if (m_progress != nullptr) {
            m_progress->advance(0, static_cast<std::int64_t>(bytes.size()));
            m_progress->requireWanted();
        }
        if (isMoved)
            whole += bytes;
        else
            write(bytes);
    });
    if (isMoved) {
        const std::string moved = movedText(whole, text, m_moves);
        if (moved != whole)
            m_rewritten.push_back(entry.name);
        write(moved);
    }
    const std::array<timespec, 2> times = timesOf(entry);
    if (::futimens(file.get(), times.data()) != 0)
        fail("unpack", path, errno);
    if (const int error = m_written.add(std::move(file)); error != 0)
        fail("unpack", path, error);
}

void Unpacking::makeLinks() {
    const FileManager files;
    for (const Later& link : m_links) {
        const std::string target = movedPath(link.entry->target, m_moves);
        if (reachOf(link.finalPath, target, m_places) == LinkReach::outside)
            continue;
        if (target != link.entry->target)
            m_rewritten.push_back(link.entry->name);
        files.createLink(target, link.path);
    }
}

/// Those inside others first: a folder's time changes with its entries, and its mode may forbid to add any.
void Unpacking::finishFolders() {
    std::ranges::sort(m_folders, std::greater(), [](const Later& folder) { return folder.path.native(); });
    for (const Later& folder : m_folders) {
        const std::array<timespec, 2> times = timesOf(*folder.entry);
        const mode_t mode = static_cast<mode_t>((folder.entry->mode & 0755U) | 0700U);
        const bool isTop = m_trees.contains(folder.entry->name);
        if (::chmod(folder.path.c_str(), isTop ? 0700 : mode) != 0 ||
            ::utimensat(AT_FDCWD, folder.path.c_str(), times.data(), AT_SYMLINK_NOFOLLOW) != 0)
            fail("unpack", folder.path, errno);
        if (const int error = m_written.addFolder(folder.path); error != 0)
            fail("unpack", folder.path, error);
    }
}

} // namespace selvane
