// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "platform/files/Descriptor.h"

namespace selvane {

struct FolderEntry {
    std::string name;
    bool isLink = false;
};

/// A folder kept open for work on many of its entries. They are reached by name, so the system needn't look
/// up the path for each, and what the listing says isn't asked again.
///
/// Failures throw `std::filesystem::filesystem_error` with the path of the entry.
class OpenFolder {
public:
    /// Throws unless it is a folder; a link to one throws too.
    explicit OpenFolder(const std::filesystem::path& folder);
    /// Follows a link to a folder. Nothing if there is no folder. A link that leads nowhere throws: what it
    /// leads to may be on a disk that isn't there just now.
    static std::optional<OpenFolder> ifPresent(const std::filesystem::path& folder);

    /// In listing order, including hidden ones.
    std::vector<FolderEntry> entries() const;
    /// The text of the symbolic link `name`; nothing if there is no link.
    std::optional<std::string> linkTarget(const std::string& name) const;
    /// Whether something exists after following links. Throws if that can't be determined.
    bool isPresent(const std::string& name) const;

    /// Creates a symbolic link whose text is `target`. Fails if the name is taken.
    void createLink(const std::string& target, const std::string& name) const;
    /// `FileManager::removeLink` for the link `name`.
    bool removeLink(const std::string& name) const;

private:
    OpenFolder(std::filesystem::path path, files::Descriptor folder);

    std::filesystem::path m_path;
    files::Descriptor m_folder;
};

} // namespace selvane
