// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QImage>

namespace selvane {

/// The application's icon, `pixels` wide and high, with the margin that icons keep around the artwork. From
/// 64 pixels on it has depth; below, it is flat, and in the sizes of icon themes its edges lie on whole
/// pixels. Null when there is no memory for it.
QImage appIcon(int pixels);

} // namespace selvane
