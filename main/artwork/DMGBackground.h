// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <filesystem>

namespace selvane::DMGBackground {

/// Writes the background of the disk image, 680 × 460 points in two resolutions, to a folder, which is
/// created with its parents if missing. Needs a QGuiApplication and the fonts. Throws `LauncherError` if an
/// image can't be made, or the file system's error; files already written stay.
void render(const std::filesystem::path& folder);

} // namespace selvane::DMGBackground
