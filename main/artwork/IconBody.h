// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QColor>
#include <QLinearGradient>
#include <QPainter>
#include <QPointF>

namespace selvane {

/// The side of the square in which icons with depth are drawn.
constexpr qreal kIconCanvas = 1024;

/// Light behind what stands on a body.
struct IconGlow {
    QColor color;
    QPointF centre;
    qreal strength; ///< its opacity there
};

/// Paints the rounded body that icons with depth stand on, with its shadow and a glow, on an empty image of
/// `pixels`. Then leaves the painter in the coordinates of the canvas.
void paintIconBody(QPainter& painter, int pixels, const IconGlow& glow);

/// From the top of the box to its bottom.
QLinearGradient verticalGradient(const QRectF& box, const QGradientStops& stops);

} // namespace selvane
