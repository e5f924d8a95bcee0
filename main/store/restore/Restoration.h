// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <filesystem>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "model/Restore.h"
#include "platform/files/FolderLock.h"
#include "store/restore/ArchiveListing.h"
#include "store/restore/ArchiveParts.h"
#include "store/restore/RestoreJournal.h"
#include "store/restore/Unpacking.h"

namespace selvane {

class Progress;

/// What the user calls a part.
std::string titleOf(const RestorePart& part);

/// Parts of an archive on their way to their places. What has no place in the end is removed.
class Restoration {
public:
    /// Those parts of the archive that are `wanted`.
    Restoration(const CheckedArchive& archive, const std::vector<RestorePart>& wanted, SavedPlaces places,
                Progress* progress);
    ~Restoration();
    Restoration(const Restoration&) = delete;
    Restoration& operator=(const Restoration&) = delete;

    const std::vector<RestorePart>& parts() const { return m_parts; }

    /// Chooses names beside the targets. Throws if there is no space for what is unpacked there, or if one
    /// of the targets contains a place of another part.
    RestoreJournal prepareBeside();
    /// Chooses names in a folder in the profiles root that is used for nothing else, and locks it. Throws if
    /// there is no space there.
    void prepareAside();
    /// Removes what a killed run has left in that folder, with the folder.
    static void removeAside(const SavedPlaces& places);
    /// Unpacks to these names and compares with what is there.
    RestoreReport unpack();
    /// Removes what was unpacked.
    void discard();
    /// The journal decides from now on what becomes of the temporaries.
    void release() { m_trees.clear(); }

private:
    std::map<std::filesystem::path, std::uint64_t> needs(const std::filesystem::path& all) const;
    void requireApart() const;

    const CheckedArchive& m_archive;
    const SavedPlaces m_places;
    const ArchiveListing m_listing;
    Progress* m_progress;
    std::vector<RestorePart> m_parts;
    std::vector<TreeToRestore> m_trees;
    std::filesystem::path m_folder;   ///< of their own; empty if they are beside their targets
    std::optional<FolderLock> m_lock; ///< of that folder
};

} // namespace selvane
