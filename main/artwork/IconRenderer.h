// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <filesystem>

namespace selvane::IconRenderer {

/// Writes the ten files of an icon set into a folder, which is made with its parents when it is missing.
/// Files of these names are replaced, others left alone. Throws `LauncherError` when an image can't be made,
/// or the file system's error; what was written before stays.
void render(const std::filesystem::path& folder);

} // namespace selvane::IconRenderer
