// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <filesystem>

namespace selvane::IconRenderer {

/// Writes the ten files of an icon set to a folder, which is created with its parents if missing. Replaces
/// files of these names and leaves others alone. Throws `LauncherError` if an image can't be made, or the
/// file system's error; files already written stay.
void render(const std::filesystem::path& folder);

} // namespace selvane::IconRenderer
