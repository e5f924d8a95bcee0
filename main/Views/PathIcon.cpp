// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "Views/PathIcon.h"

#include <string>

#include "artwork/Icons.h"

namespace selvane {
namespace {

IconWeight weightOf(PathIcon::Weight weight, qreal size) {
    switch (weight) {
    case PathIcon::Light:
        return IconWeight::light;
    case PathIcon::Regular:
        return IconWeight::regular;
    case PathIcon::Bold:
        return IconWeight::bold;
    case PathIcon::Fill:
        return IconWeight::fill;
    case PathIcon::Automatic:
        break;
    }
    if (size >= 36)
        return IconWeight::light;
    return size >= 16 ? IconWeight::regular : IconWeight::bold;
}

} // namespace

PathIcon::PathIcon(QQuickItem* parent) : PaintedShape(parent) {
    connect(this, &PathIcon::shapeChanged, this, [this] {
        setSide(m_size);
        emit changed();
    });
}

void PathIcon::paint(QPainter& painter) const {
    const std::string symbol = m_symbol.toStdString();
    const std::string name = m_name.toStdString();
    const std::string_view icon = name.empty() && !symbol.empty() ? iconForSymbol(symbol) : name;
    fill(painter, iconPath(icon, weightOf(m_weight, m_size)), kIconBox, m_color);
}

} // namespace selvane
