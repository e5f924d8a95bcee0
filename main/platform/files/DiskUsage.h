// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <filesystem>
#include <vector>

namespace selvane {

class Progress;

/// The bytes that everything at these paths takes up on the disk. A link at one of them is followed, those
/// below aren't. A file with several names counts once. What lies on another file system than the path
/// itself, what is missing and what can't be looked at doesn't count. Throws `operation_canceled` if
/// `progress` (may be null) is cancelled meanwhile.
std::uintmax_t diskUsage(const std::vector<std::filesystem::path>& paths, const Progress* progress);

} // namespace selvane
