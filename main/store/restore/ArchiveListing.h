// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <filesystem>
#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "platform/files/ArchiveReader.h"

namespace selvane {

/// The entries of an archive, none of which can do harm when it is unpacked into a new folder.
///
/// Throws `LauncherError` for an archive that is damaged, that no backup would have made, or that is unsafe:
/// with a name that leads out of the folder, that is too long for any, that occurs twice or lies below
/// something that is no folder; with a device or the like; or if it would take more than `kMostTimes` its own
/// size, be it with contents or with the folders that its names imply.
class ArchiveListing {
public:
    static constexpr std::uint64_t kMostTimes = 100;

    /// Reads the entries, but no content.
    explicit ArchiveListing(const std::filesystem::path& archive);

    using Entries = std::map<std::string, ArchiveEntry, std::less<>>;
    const Entries& entries() const { return m_entries; }
    /// The entries below a folder, without itself.
    std::pair<Entries::const_iterator, Entries::const_iterator> below(std::string_view folder) const;
    bool holds(std::string_view name) const { return m_entries.contains(name); }
    bool holdsBelow(std::string_view folder) const {
        const auto [begin, end] = below(folder);
        return begin != end;
    }
    std::uint64_t archiveSize() const { return m_archiveSize; }
    std::uint64_t contentSize() const { return m_total; } ///< bytes, unpacked
    /// The bytes that an entry and everything below it may take up, unpacked.
    std::uint64_t spaceFor(std::string_view name) const;

private:
    void add(ArchiveEntry entry);

    Entries m_entries; ///< by name
    std::uint64_t m_archiveSize = 0;
    std::uint64_t m_total = 0;
};

/// What tells one state of an archive's file from another. Throws if it can't be looked at.
std::string archiveState(const std::filesystem::path& archive);

/// Whether a name is safe to unpack: relative, and without "", "." and ".." in it.
bool isSafeName(std::string_view name);

/// The content of the current entry. Throws `LauncherError` if it is longer than the archive says.
void readGuarded(ArchiveReader& reader, const ArchiveEntry& entry,
                 const std::function<void(std::string_view bytes)>& use);

} // namespace selvane
