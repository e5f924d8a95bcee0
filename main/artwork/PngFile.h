// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QImage>

#include <filesystem>

namespace selvane {

/// Writes an image whose pixels are `scale` to a point, which the file says. The same image gives the same
/// bytes. False when it can't be made into a PNG; a failure to write it throws.
bool writePng(QImage image, int scale, const std::filesystem::path& file);

} // namespace selvane
