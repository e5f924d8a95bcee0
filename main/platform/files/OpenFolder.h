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

/// A folder for work on many of its entries: they are reached by their name in the open folder, without the
/// way there being looked up for each, and what the listing tells is not asked again.
///
/// What fails throws `std::filesystem::filesystem_error` with the path of the entry.
class OpenFolder {
public:
    /// Throws for anything but a folder, a link to one included.
    explicit OpenFolder(const std::filesystem::path& folder);
    /// Follows a link to a folder. Nothing when there is no folder or it can't be read.
    static std::optional<OpenFolder> ifReadable(const std::filesystem::path& folder);

    /// In the order of the listing, hidden ones included; empty when that fails.
    std::vector<FolderEntry> entriesIfReadable() const;
    /// The text of the symbolic link of that name; nothing when there is no link.
    std::optional<std::string> linkTarget(const std::string& name) const;
    /// Whether something is there once links are followed; false on any error.
    bool existsFollowingLinks(const std::string& name) const;

    /// Makes a symbolic link whose text is `target`. Fails when anything has that name.
    void createLink(const std::string& target, const std::string& name) const;
    /// Removes a symbolic link. False, with nothing done, when anything else or nothing has that name.
    bool removeLink(const std::string& name) const;

private:
    OpenFolder(std::filesystem::path path, files::Descriptor folder);

    std::filesystem::path m_path;
    files::Descriptor m_folder;
};

} // namespace selvane
