// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include <map>
#include <set>

#include "model/LauncherError.h"
#include "platform/files/NormalizedPath.h"
#include "platform/files/Progress.h"
#include "platform/text/Text.h"
#include "store/BackupReadme.h"
#include "store/ProfileStore.h"
#include "store/restore/ArchiveListing.h"
#include "store/restore/ArchiveParts.h"
#include "store/restore/FormerHome.h"
#include "store/restore/Restore.h"
#include "store/restore/Unpacking.h"

namespace selvane {
namespace {

namespace fs = std::filesystem;

using EntryKind = ArchivedEntry::Kind;

/// Texts that are likely to hold paths of the home where they were written.
constexpr std::array<std::string_view, 7> kTelling = {"claude-profile",        "CLAUDE.md",
                                                      "settings.json",         "settings.local.json",
                                                      ".claude.json",          "known_marketplaces.json",
                                                      "installed_plugins.json"};

std::string_view fileName(std::string_view path) {
    return path.substr(path.rfind('/') + 1);
}

constexpr std::size_t kMostKept = std::size_t{64} << 20; ///< bytes of records, all together
constexpr std::size_t kMostPaths = 256;                  ///< that a readme lists

bool isRecord(std::string_view name) {
    return name == ProfileStore::kMetaFileName || name == "default.json" || name == ".live";
}

/// Reads everything in an archive once.
class ArchiveReading {
public:
    explicit ArchiveReading(Progress* progress) : m_progress(progress) {}

    /// What the readme lists; throws if there is none.
    std::vector<std::string> readme(const fs::path& archive) {
        ArchiveReader reader(archive);
        while (const auto entry = reader.next()) {
            if (entry->name != kReadmeName || entry->kind != EntryKind::file ||
                entry->size > FileManager::kLongestRecord)
                continue;
            std::string text;
            readGuarded(reader, *entry, [&](std::string_view bytes) { text += bytes; });
            if (auto paths = pathsInReadme(text); paths && paths->size() <= kMostPaths)
                return std::move(*paths);
        }
        throw LauncherError("Non è un archivio di Selvane: " + text::singleLine(archive.string()));
    }

    /// Checks every content, keeps the profiles' records and looks for the former home.
    void everything(const fs::path& archive, FormerHome& home) {
        ArchiveReader reader(archive);
        while (const auto entry = reader.next()) {
            const std::string_view name = fileName(entry->name);
            const bool isKept = isRecord(name) && entry->size <= FileManager::kLongestRecord &&
                                m_kept + entry->size <= kMostKept;
            const bool tells = std::ranges::find(kTelling, name) != kTelling.end();
            std::string text;
            readGuarded(reader, *entry, [&](std::string_view bytes) {
                if (isKept || (tells && text.size() < FileManager::kLongestRecord))
                    text += bytes;
                advance(0, bytes.size());
            });
            advance(1, 0);
            if (tells)
                home.read(text);
            if (entry->kind == EntryKind::link)
                home.read(entry->target);
            if (isKept) {
                m_kept += text.size();
                m_texts[entry->name] = std::move(text);
            }
        }
    }

    std::string text(const std::string& name) const {
        const auto known = m_texts.find(name);
        return known == m_texts.end() ? std::string() : known->second;
    }

private:
    void advance(std::int64_t entries, std::size_t bytes) const {
        if (m_progress == nullptr)
            return;
        m_progress->advance(entries, static_cast<std::int64_t>(bytes));
        m_progress->requireWanted();
    }

    Progress* m_progress;
    std::map<std::string, std::string> m_texts;
    std::size_t m_kept = 0; ///< bytes of these
};

} // namespace

CheckedArchive checkArchive(const ProfileStore& store, const fs::path& archive) {
    const fs::path file = normalizedPath(archive);
    const std::string state = archiveState(file);
    const ArchiveListing listing(file);
    ArchiveReading reading(store.progress());
    const std::vector<std::string> paths = reading.readme(file);
    const ArchivedPlaces archived = archivedPlaces(listing, paths);
    const SavedPlaces places = savedPlaces(store);
    if (store.progress() != nullptr)
        store.progress()->expect(Progress::Amount{static_cast<std::int64_t>(listing.entries().size()),
                                                  static_cast<std::int64_t>(listing.contentSize())});
    FormerHome home(paths);
    reading.everything(file, home);

    CheckedArchive checked;
    checked.file = file;
    checked.state = state;
    checked.size = static_cast<std::int64_t>(listing.archiveSize());
    checked.created = listing.entries().find(kReadmeName)->second.modified;
    checked.files = static_cast<std::int64_t>(listing.entries().size());
    checked.paths = paths;
    if (home.mostLikely() != places.home)
        checked.formerHome = home.mostLikely();
    const auto text = [&](const std::string& name) { return reading.text(name); };
    checked.parts = archivedParts(listing, archived, places, text, checked.others);
    const std::vector<PathMove> moves = pathMoves(paths, archived, places, checked.formerHome);
    for (const RestorePart& part : checked.parts) {
        for (const RestorePart::Tree& tree : part.trees) {
            const auto add = [&](const std::string& name, const ArchiveEntry& entry) {
                if (entry.kind != EntryKind::link)
                    return;
                const fs::path place = tree.target.native() + name.substr(tree.archived.size());
                const LinkReach reach = reachOf(place, movedPath(entry.target, moves), places);
                if (reach != LinkReach::own)
                    checked.foreignLinks.push_back({name, entry.target, reach == LinkReach::outside});
            };
            if (const auto top = listing.entries().find(tree.archived); top != listing.entries().end())
                add(top->first, top->second);
            const auto [begin, end] = listing.below(tree.archived);
            for (auto entry = begin; entry != end; ++entry)
                add(entry->first, entry->second);
        }
    }
    return checked;
}

} // namespace selvane
