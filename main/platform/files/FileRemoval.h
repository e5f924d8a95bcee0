// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <filesystem>

namespace selvane::files {

/// `FileManager::removeTree`. Errors name paths below `named`, the user's name for `path`.
void removeTree(const std::filesystem::path& path, const std::filesystem::path& named);

/// Removes the symbolic link `name` in the open folder `folder`. If anything else is there, even if it comes
/// at the last moment, leaves it and returns false. `named` is the link's path for errors and for the Trash,
/// which takes what can't be put back because the name is taken again.
bool removeLink(int folder, const std::filesystem::path& name, const std::filesystem::path& named);

} // namespace selvane::files
