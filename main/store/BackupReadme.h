// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace selvane {

/// The name of that text in the archive.
constexpr std::string_view kReadmeName = "LEGGIMI-backup.txt";

/// The text that every backup holds: when it was made, what it holds and what it lacks, how to restore it.
/// Paths are relative to the home folder, absolute outside it.
std::string backupReadme(const std::vector<std::string>& paths, const std::vector<std::string>& missing);

/// The paths that such a text lists, in its order; nothing if it is none of a backup's.
std::optional<std::vector<std::string>> pathsInReadme(std::string_view readme);

} // namespace selvane
