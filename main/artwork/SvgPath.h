// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QPainterPath>

#include <string_view>

namespace selvane {

/// Reads the data of an SVG path element. Arcs are taken to be circular, as those of the icons are; what
/// can't be read ends the path there.
QPainterPath svgPath(std::string_view data);

} // namespace selvane
