// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <filesystem>

namespace selvane {

/// Moves `path` to the user's Trash; a link goes itself, not its target. If the Trash can't take it, throws
/// `LauncherError` and leaves it as it was.
void moveToTrash(const std::filesystem::path& path);

} // namespace selvane
