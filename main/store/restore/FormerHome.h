// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <filesystem>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "model/Restore.h"
#include "store/SettingsPaths.h"

namespace selvane {

/// Finds out where the home folder was in which an archive was made, from the links and the texts in it.
class FormerHome {
public:
    /// What the archive's readme lists, relative to that home.
    explicit FormerHome(const std::vector<std::string>& paths);

    /// Looks for absolute paths of what the readme lists. Takes no account of homes with very long paths, nor
    /// of any more once very many have been met.
    void read(std::string_view text);
    /// The home that was met most often; empty if none was.
    std::filesystem::path mostLikely() const;

private:
    std::vector<std::string> m_paths;
    std::map<std::string, int, std::less<>> m_seen;
};

/// What kind of text with paths in it a file of a part is.
enum class PathText {
    none,
    json,
    rules, ///< lines that begin with "@" are paths
};
/// `below` is the path inside the tree; empty for the tree itself.
PathText pathTextIn(RestorePart::Kind kind, std::string_view below);

/// The text with its paths moved; unchanged if it isn't UTF-8.
std::string movedText(const std::string& text, PathText kind, const std::vector<PathMove>& moves);

} // namespace selvane
