// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <string>
#include <vector>

namespace selvane {

/// The text that every backup holds: when it was made, what it holds and what it lacks, how to restore it.
/// Paths are relative to the home folder, absolute outside it.
std::string backupReadme(const std::vector<std::string>& paths, const std::vector<std::string>& missing);

} // namespace selvane
