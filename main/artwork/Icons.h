// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QPainterPath>

#include <string_view>

namespace selvane {

enum class IconWeight { light, regular, bold, fill };

/// Side of the square in which every icon is drawn.
constexpr qreal kIconBox = 256;

/// The icon for a system symbol's name, which profiles and components use; "user-circle" if unknown.
std::string_view iconForSymbol(std::string_view symbol);

/// The SVG path data of an icon. An icon that lacks this weight has its regular data; empty if there is none.
std::string_view iconData(std::string_view name, IconWeight weight);

/// The same as a path, to be filled without a stroke.
QPainterPath iconPath(std::string_view name, IconWeight weight);

} // namespace selvane
