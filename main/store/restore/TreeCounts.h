// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <filesystem>

#include "model/Restore.h"

namespace selvane {

/// Adds how the files and links of one tree differ from those of another, which may be missing. What can't be
/// read there counts as changed.
void addCounts(const std::filesystem::path& fresh, const std::filesystem::path& present,
               RestoreCounts& counts);

} // namespace selvane
