// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "Views/controls/RoundedFrame.h"

#include <QPainter>

namespace selvane {

void RoundedFrame::paint(QPainter& painter) const {
    QPainterPath corners;
    corners.addRect(boundingRect());
    corners.addRoundedRect(boundingRect(), m_radius, m_radius);
    painter.fillPath(corners, m_outside); // the odd-even rule leaves out the inside
    painter.setPen(m_color);
    painter.drawRoundedRect(boundingRect().adjusted(0.5, 0.5, -0.5, -0.5), m_radius - 0.5, m_radius - 0.5);
}

} // namespace selvane
