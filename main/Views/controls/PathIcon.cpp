// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "Views/controls/PathIcon.h"

#include <QGuiApplication>
#include <QPainter>

#include <algorithm>
#include <cmath>
#include <string>

#include "artwork/SystemSymbol.h"

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
        readSystemSymbol();
        emit changed();
    });
}

/// As fine as the finest screen, because the screen that will show the icon isn't known here.
void PathIcon::readSystemSymbol() {
    const int pixels = static_cast<int>(std::ceil(m_size * qGuiApp->devicePixelRatio()));
    const bool isSymbol = m_name.isEmpty() && !m_symbol.isEmpty() && pixels > 0;
    m_systemSymbol = isSymbol ? systemSymbol(m_symbol, weightOf(m_weight, m_size), pixels) : QImage();
}

void PathIcon::paintSystemSymbol(QPainter& painter) const {
    QImage coloured = m_systemSymbol;
    QPainter colouring(&coloured);
    colouring.setCompositionMode(QPainter::CompositionMode_SourceIn);
    colouring.fillRect(coloured.rect(), m_color);
    colouring.end();
    const qreal side = std::min(width(), height());
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(QRectF((width() - side) / 2, (height() - side) / 2, side, side), coloured);
}

void PathIcon::paint(QPainter& painter) const {
    if (!m_systemSymbol.isNull()) {
        paintSystemSymbol(painter);
        return;
    }
    const std::string symbol = m_symbol.toStdString();
    const std::string name = m_name.toStdString();
    const std::string_view icon = name.empty() && !symbol.empty() ? iconForSymbol(symbol) : name;
    fill(painter, iconPath(icon, weightOf(m_weight, m_size)), kIconBox, m_color);
}

} // namespace selvane
