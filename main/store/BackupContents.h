// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/files/ArchiveReader.h"
#include "store/ZipList.h"

namespace selvane {

/// What a backup is to hold, listed before it is made, to compare the archive with.
class BackupContents {
public:
    /// Lists everything in `list` that isn't left out.
    BackupContents(const ZipList& list, std::filesystem::path home);

    std::int64_t bytes() const; ///< contents of all the files
    /// Compares with the names, kinds and sizes in the archive. Call it once.
    void compare(ArchiveReader& archive);
    /// After that: what isn't in the archive as it was or, if it has changed meanwhile, as it is now. Paths
    /// as in the list, sorted; folders that couldn't be listed are among them. What is gone by now isn't
    /// missing.
    std::vector<std::string> missing() const;
    /// How many entries the archive had.
    std::size_t archived() const { return m_archived; }

private:
    struct Expected {
        std::string path;
        ArchivedEntry::Kind kind;
        std::uint64_t size;
        std::optional<std::uint64_t> archivedSize; ///< nothing if it isn't there
    };

    void add(const std::string& top, const ZipList& list);
    bool isMissing(const Expected& entry) const;

    const std::filesystem::path m_home;
    std::vector<Expected> m_entries;     ///< sorted by their name in the archive, each once
    std::vector<std::string> m_unlisted; ///< folders whose content isn't known
    std::size_t m_archived = 0;
};

} // namespace selvane
