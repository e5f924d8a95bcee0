// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "model/Profile.h"

namespace selvane {

/// The text of a settings file (JSON) with the paths into the folder of `from` changed to that of `to`.
/// Nothing else in it changes.
std::string withRewrittenPaths(std::string_view text, const Profile& from, const Profile& to);

/// A folder or file that is now elsewhere.
struct PathMove {
    std::filesystem::path from;
    std::filesystem::path to;

    bool operator==(const PathMove&) const = default;
};

/// The text of a JSON file with what begins with one of these paths changed; the first that fits counts.
/// Paths inside others, such as "/mnt/home/a" for "/home/a", stay.
std::string withMovedPaths(std::string_view json, const std::vector<PathMove>& moves);
/// The same for a path itself.
std::filesystem::path movedPath(const std::filesystem::path& path, const std::vector<PathMove>& moves);

} // namespace selvane
