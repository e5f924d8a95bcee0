// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QImage>

#include <filesystem>

namespace selvane {

/// An image as a PNG file with `scale` pixels per point. The same image always gives the same bytes; empty if
/// it can't be encoded.
QByteArray pngBytes(QImage image, int scale);

/// Writes an image with `scale` pixels per point, and records that resolution in the file. The same image
/// always gives the same bytes. False if it can't be encoded as PNG; throws if it can't be written.
bool writePng(QImage image, int scale, const std::filesystem::path& file);

} // namespace selvane
