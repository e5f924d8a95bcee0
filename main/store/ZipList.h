// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace selvane {

/// Names that an archive leaves out. A name is that of the entry, with a slash at the end of a folder's.
class Exclusion {
public:
    /// The names that begin with `start` and go on as in `wildcards`: in it, "*" stands for anything and may
    /// be the first character, the last one, or both.
    explicit Exclusion(std::string start, std::string_view wildcards = {})
        : m_start(std::move(start)), m_wildcards(wildcards) {}

    bool matches(std::string_view name) const;
    /// As zip takes it after "-x".
    std::string pattern() const;

private:
    std::string m_start;
    std::string_view m_wildcards;
};

/// What one run of zip stores and leaves out.
struct ZipList {
    std::vector<std::string> paths; ///< relative to the home folder, absolute outside it
    std::vector<std::string>
        linked; ///< likewise: links among them that are stored as the folders they lead to
    std::vector<Exclusion> exclusions;

    bool excludes(std::string_view name) const;
};

/// `path` relative to the home folder, or unchanged if it is elsewhere.
std::string relativeToHome(const std::filesystem::path& path, const std::filesystem::path& home);
/// The name under which zip stores what is at `path`, which is relative to the home folder or absolute.
std::string_view archivedName(std::string_view path);

/// The list for `sources`, which must exist. `desktopFolders` are the folders among or inside them that hold
/// Claude Desktop's data; its caches and downloads are left out. `ownFolders` are the folders inside the
/// sources that are to be in the archive even where they are links.
ZipList zipList(const std::vector<std::filesystem::path>& sources,
                const std::vector<std::filesystem::path>& desktopFolders,
                const std::vector<std::filesystem::path>& ownFolders, const std::filesystem::path& home);

/// The arguments that make zip write the list to a new archive. Until that is complete, it lies in `work`, a
/// folder on the same file system.
std::vector<std::string> zipArguments(const ZipList& list, const std::filesystem::path& archive,
                                      const std::filesystem::path& work);

} // namespace selvane
