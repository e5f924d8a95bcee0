// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QPainterPath>

#include <string_view>

namespace selvane {

enum class IconWeight { light, regular, bold, fill };

/// Side of the square that every icon is drawn in.
constexpr qreal kIconBox = 256;

/// The icon that stands for a system symbol's name, as profiles and components carry it; "user-circle" for a
/// name that isn't known.
std::string_view iconForSymbol(std::string_view symbol);

/// SVG path data of an icon. Not every icon exists in every weight: then it is that of the regular one, and
/// empty when there is none either.
std::string_view iconData(std::string_view name, IconWeight weight);

/// The same as a path, filled without a stroke.
QPainterPath iconPath(std::string_view name, IconWeight weight);

} // namespace selvane
