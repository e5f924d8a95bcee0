// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <filesystem>

namespace selvane::files {

/// `FileManager::removeTree`. Errors name paths below `named`, the user's name for `path`.
void removeTree(const std::filesystem::path& path, const std::filesystem::path& named);

} // namespace selvane::files
