// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "store/restore/Restoration.h"

#include <algorithm>
#include <sys/statvfs.h>

#include "model/LauncherError.h"
#include "platform/files/Descriptor.h"
#include "platform/files/FileManager.h"
#include "platform/files/Progress.h"
#include "platform/files/Temporary.h"
#include "platform/text/Text.h"
#include "store/restore/TreeCounts.h"

namespace selvane {
namespace {

namespace fs = std::filesystem;

using PartKind = RestorePart::Kind;

/// The folder above that exists.
fs::path existingAbove(fs::path path) {
    std::error_code ignored;
    while (path.has_relative_path() && !fs::exists(path, ignored))
        path = path.parent_path();
    return path;
}

/// Throws unless what is to be unpacked fits where it goes.
void requireSpace(const std::map<fs::path, std::uint64_t>& needed) {
    std::map<unsigned long, std::uint64_t> disks;
    for (const auto& [folder, bytes] : needed) {
        struct statvfs status = {};
        const fs::path there = existingAbove(folder);
        if (::statvfs(there.c_str(), &status) != 0)
            files::fail("restore", there, errno);
        std::uint64_t& sum = disks[status.f_fsid];
        sum += bytes;
        const std::uint64_t available = std::uint64_t{status.f_bavail} * status.f_frsize;
        if (sum > available)
            throw LauncherError("Non c'è abbastanza spazio in " + text::singleLine(there.string()) +
                                ": servono " + text::byteCount(static_cast<std::int64_t>(sum)) + ", liberi " +
                                text::byteCount(static_cast<std::int64_t>(available)));
    }
}

bool isInside(const fs::path& path, const fs::path& folder) {
    return path.native().starts_with(folder.native() + "/");
}

fs::path placeAside(const SavedPlaces& places) {
    return places.root / (std::string(FileManager::kTemporaryPrefix) + "restore-trial");
}

void removeQuietly(const fs::path& path) {
    try {
        FileManager().removeTree(path);
    } catch (const fs::filesystem_error&) { // its name is no item's, and nobody misses it
    }
}

} // namespace

std::string titleOf(const RestorePart& part) {
    switch (part.kind) {
    case PartKind::principal:
        return part.isRecordOnly() ? "Nome e simbolo di «" + part.name + "»" : "Configurazione principale";
    case PartKind::profile:
        return "Profilo «" + part.name + "»";
    case PartKind::account:
        return "Account di «" + part.name + "»";
    case PartKind::terminalHelper:
        break;
    }
    return "Comando da terminale";
}

Restoration::Restoration(const CheckedArchive& archive, const std::vector<RestorePart>& wanted,
                         SavedPlaces places, Progress* progress)
    : m_archive(archive), m_places(std::move(places)), m_listing(archive.file), m_progress(progress) {
    if (archiveState(archive.file) != archive.state)
        throw LauncherError("L'archivio è cambiato nel frattempo: " +
                            text::singleLine(archive.file.string()));
    for (const RestorePart& part : archive.parts) {
        const auto isWanted = [&](const RestorePart& each) { return each.isSameAs(part); };
        if (std::any_of(wanted.begin(), wanted.end(), isWanted))
            m_parts.push_back(part);
    }
}

Restoration::~Restoration() {
    discard();
}

void Restoration::discard() {
    for (const TreeToRestore& tree : m_trees)
        removeQuietly(tree.temporary);
    m_trees.clear();
    if (!m_folder.empty())
        removeQuietly(m_folder);
}

RestoreJournal Restoration::prepareBeside() {
    RestoreJournal journal{m_archive.file, false, {}};
    requireApart();
    requireSpace(needs({}));
    for (const RestorePart& part : m_parts) {
        RestoreJournal::Part noted{titleOf(part), {}};
        for (const RestorePart::Tree& tree : part.trees) {
            FileManager().createFolders(tree.target.parent_path(), Privacy::ownerOnly);
            m_trees.push_back({part.kind, tree, files::newSibling(tree.target)});
            noted.swaps.push_back({tree.target, m_trees.back().temporary, {}, 0, TreeSwap::State::old});
        }
        journal.parts.push_back(std::move(noted));
    }
    return journal;
}

void Restoration::prepareAside() {
    requireSpace(needs(m_places.root));
    const fs::path folder = placeAside(m_places);
    const FileManager files;
    files.createFolders(folder, Privacy::ownerOnly);
    m_lock.emplace(folder, m_progress);
    m_folder = folder;
    for (const std::string& name : files.entriesIfPresent(folder)) // of a killed run
        files.removeTree(folder / name);
    for (const RestorePart& part : m_parts) {
        for (const RestorePart::Tree& tree : part.trees)
            m_trees.push_back({part.kind, tree, m_folder / std::to_string(m_trees.size())});
    }
}

void Restoration::removeAside(const SavedPlaces& places) {
    const fs::path folder = placeAside(places);
    if (const auto lock = FolderLock::ifFree(folder))
        FileManager().removeTree(folder);
}

RestoreReport Restoration::unpack() {
    const ArchivedPlaces archived = archivedPlaces(m_listing, m_archive.paths);
    const auto moves = pathMoves(m_archive.paths, archived, m_places, m_archive.formerHome);
    if (m_progress != nullptr) {
        for (const RestorePart& part : m_parts)
            m_progress->expect(Progress::Amount{part.files, part.bytes});
    }
    Unpacking unpacking(m_listing, m_trees, m_places, moves, m_progress);
    unpacking.run(m_archive.file);
    RestoreReport report;
    report.rewritten = unpacking.rewritten();
    std::size_t tree = 0;
    for (const RestorePart& part : m_parts) {
        report.parts.push_back({part, {}});
        for (std::size_t i = 0; i < part.trees.size(); ++i, ++tree)
            addCounts(m_trees[tree].temporary, m_trees[tree].tree.target, report.parts.back().counts);
    }
    return report;
}

/// The bytes for each folder, or for `all` in one.
std::map<fs::path, std::uint64_t> Restoration::needs(const fs::path& all) const {
    std::map<fs::path, std::uint64_t> needed;
    for (const RestorePart& part : m_parts) {
        for (const RestorePart::Tree& tree : part.trees)
            needed[all.empty() ? tree.target.parent_path() : all] += m_listing.spaceFor(tree.archived);
    }
    return needed;
}

/// What is inside a target would go to the Trash with it.
void Restoration::requireApart() const {
    for (const RestorePart& part : m_parts) {
        for (const RestorePart::Tree& tree : part.trees) {
            for (const fs::path& place : {m_places.root, m_places.configuration, m_places.desktopData}) {
                if (isInside(place, tree.target))
                    throw LauncherError("Non si può ripristinare " + text::singleLine(tree.target.string()) +
                                        ": contiene " + text::singleLine(place.string()));
            }
        }
    }
}

} // namespace selvane
