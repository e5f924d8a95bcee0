// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <filesystem>

namespace selvane::DMGBackground {

/// Writes the background of the disk image, 680 × 460 points, in two resolutions into a folder, which is made
/// with its parents when it is missing. Needs a QGuiApplication and its fonts. Throws `LauncherError` when an
/// image can't be made, or the file system's error; what was written before stays.
void render(const std::filesystem::path& folder);

} // namespace selvane::DMGBackground
