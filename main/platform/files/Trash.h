// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <filesystem>

namespace selvane {

/// Moves `path` (a link itself, not what it points to) to the user's Trash. Throws `LauncherError`, with the
/// original untouched, where the Trash can't take it.
void moveToTrash(const std::filesystem::path& path);

} // namespace selvane
