// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <filesystem>
#include <optional>

#include "platform/files/FileState.h"

namespace selvane {

/// Something in the Trash.
struct TrashedItem {
    std::filesystem::path place;
    std::filesystem::path note; ///< the Trash's own file about it; empty if there is none
    files::FileIdentity identity;
};

/// Moves `path` to the user's Trash; a link goes itself, not its target. If the Trash can't take it, throws
/// `LauncherError` and leaves it as it was. Returns where it is now; nothing if that can't be told.
std::optional<TrashedItem> moveToTrash(const std::filesystem::path& path);

} // namespace selvane
