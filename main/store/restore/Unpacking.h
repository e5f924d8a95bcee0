// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <filesystem>
#include <string>
#include <unordered_map>
#include <vector>

#include "model/Restore.h"
#include "platform/files/DiskSync.h"
#include "store/SettingsPaths.h"
#include "store/restore/ArchiveListing.h"
#include "store/restore/ArchiveParts.h"
#include "store/restore/FormerHome.h"

namespace selvane {

class Progress;

/// A tree of an archive on its way to its target.
struct TreeToRestore {
    RestorePart::Kind kind;
    RestorePart::Tree tree;
    std::filesystem::path temporary; ///< beside the target
};

/// Where a link leads.
enum class LinkReach {
    own,     ///< into the folders that Selvane looks after
    home,    ///< elsewhere in the home folder
    outside, ///< anywhere else, or it can't be told
};
/// Where a link that stands at `path` leads, by its text alone.
LinkReach reachOf(const std::filesystem::path& path, const std::string& target, const SavedPlaces& places);

/// Unpacks trees of an archive under their temporary names, for their owner alone at the top.
///
/// Every name is new, no link exists before everything else does, and what leads outside isn't made: so
/// nothing is written anywhere else. Files keep their permissions, less the creation mask, and their times;
/// no set-id bits. The paths in links and in the texts that have them are moved. Each content is checked
/// again.
class Unpacking {
public:
    Unpacking(const ArchiveListing& listing, const std::vector<TreeToRestore>& trees,
              const SavedPlaces& places, const std::vector<PathMove>& moves, Progress* progress);

    /// Afterwards everything is on the disk. Throws if the archive isn't what `listing` says any more. On
    /// failure, what was unpacked stays.
    void run(const std::filesystem::path& archive);
    /// The files whose text has changed, by their names in the archive.
    const std::vector<std::string>& rewritten() const { return m_rewritten; }

private:
    struct Later {
        std::filesystem::path path;
        const ArchiveEntry* entry;
        std::filesystem::path finalPath;
    };

    const TreeToRestore* treeOf(const std::string& name) const;
    void unpack(ArchiveReader& reader, const ArchiveEntry& entry, const TreeToRestore& tree);
    void unpackFile(ArchiveReader& reader, const ArchiveEntry& entry, const std::filesystem::path& path,
                    PathText text);
    void makeLinks();
    void finishFolders();

    const ArchiveListing& m_listing;
    std::unordered_map<std::string, const TreeToRestore*> m_trees;
    const SavedPlaces& m_places;
    const std::vector<PathMove>& m_moves;
    Progress* m_progress;
    files::DiskSync m_written;
    std::vector<Later> m_links;
    std::vector<Later> m_folders;
    std::vector<std::string> m_rewritten;
};

} // namespace selvane
