// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QPainterPath>

#include <string_view>

namespace selvane {

/// Reads the data of an SVG path element. Treats all arcs as circular, as they are in the icons. The path
/// ends at anything that can't be read.
QPainterPath svgPath(std::string_view data);

} // namespace selvane
