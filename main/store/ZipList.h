// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace selvane {

/// The paths and patterns for one run of zip, as written on its command line.
struct ZipList {
    std::vector<std::string> paths;    ///< relative to the home folder, absolute outside it
    std::vector<std::string> patterns; ///< names to leave out
};

/// `path` relative to the home folder, or unchanged if it is elsewhere.
std::string relativeToHome(const std::filesystem::path& path, const std::filesystem::path& home);

/// The list for `sources`, which must exist. `desktopFolders` are the folders among or inside them that hold
/// Claude Desktop's data; its caches and downloads are left out.
ZipList zipList(const std::vector<std::filesystem::path>& sources,
                const std::vector<std::filesystem::path>& desktopFolders, const std::filesystem::path& home);

/// The arguments that make zip write the list to a new archive.
std::vector<std::string> zipArguments(const ZipList& list, const std::filesystem::path& archive);

} // namespace selvane
