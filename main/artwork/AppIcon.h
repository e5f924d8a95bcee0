// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QImage>

namespace selvane {

/// The application's icon, `pixels` wide and high, with the usual margin around the artwork. From 64 pixels
/// on it has depth. Smaller icons are flat, and in the sizes of icon themes their edges are on whole pixels.
/// Null if there isn't enough memory.
QImage appIcon(int pixels);

} // namespace selvane
