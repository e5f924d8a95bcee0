// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace selvane {

/// What one run of zip takes, as it is to be named on its command line.
struct ZipList {
    std::vector<std::string> paths;    ///< relative to the home folder, absolute outside it
    std::vector<std::string> patterns; ///< of names to leave out
};

/// `path` without the home folder in front; as it is when it lies elsewhere.
std::string relativeToHome(const std::filesystem::path& path, const std::filesystem::path& home);

/// The list for `sources`, which exist. `desktopFolders` are those among and below them that hold data of
/// Claude Desktop, whose caches and downloads are left out.
ZipList zipList(const std::vector<std::filesystem::path>& sources,
                const std::vector<std::filesystem::path>& desktopFolders, const std::filesystem::path& home);

/// The arguments that make zip write the list to a new archive.
std::vector<std::string> zipArguments(const ZipList& list, const std::filesystem::path& archive);

} // namespace selvane
