// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "Views/brand/LeafShape.h"

#include <QPainter>

#include "artwork/Shapes.h"

namespace selvane {

void LeafShape::paint(QPainter& painter) const {
    const qreal inset = m_borderWidth / 2;
    const QRectF box = boundingRect().adjusted(inset, inset, -inset, -inset);
    painter.setPen(m_borderWidth > 0 ? QPen(m_borderColor, m_borderWidth) : QPen(Qt::NoPen));
    painter.setBrush(m_color);
    painter.drawPath(leafPath(box, m_tip - inset));
}

} // namespace selvane
