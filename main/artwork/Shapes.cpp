// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "artwork/Shapes.h"

#include <QPainterPathStroker>
#include <QTransform>

#include <algorithm>

#include "artwork/SvgPath.h"

namespace selvane {
namespace {

QPainterPath turnedAbout(QPointF centre, const QPainterPath& path) {
    return QTransform(-1, 0, 0, -1, 2 * centre.x(), 2 * centre.y()).map(path);
}

} // namespace

QPainterPath leafPath(const QRectF& box, qreal tip) {
    const qreal round = 2 * (std::min(box.width(), box.height()) / 2); // arcs are given by their diameter
    const qreal pointed = 2 * std::min(tip, round / 2);
    QPainterPath path;
    path.moveTo(box.right() - pointed / 2, box.top());
    path.arcTo(QRectF(box.right() - pointed, box.top(), pointed, pointed), 90, -90);
    path.arcTo(QRectF(box.right() - round, box.bottom() - round, round, round), 0, -90);
    path.arcTo(QRectF(box.left(), box.bottom() - round, round, round), 270, -90);
    path.arcTo(QRectF(box.left(), box.top(), round, round), 180, -90);
    path.closeSubpath();
    return path;
}

QPainterPath markUpperLeaf(bool gridded) {
    if (gridded)
        return QTransform::fromScale(1 / 16.0, 1 / 16.0)
            .map(svgPath("M13,3H6A2,2 0 0 0 6,7H9A4,4 0 0 0 13,3Z"));
    return svgPath("M.92,.08H.34A.2,.2 0 0 0 .34,.48H.52A.4,.4 0 0 0 .92,.08Z");
}

QPainterPath markLowerLeaf(bool gridded) {
    return turnedAbout({0.5, 0.5}, markUpperLeaf(gridded));
}

QPainterPath longLeafTipUp(const QRectF& box) {
    const qreal h = box.height();
    QPainterPath path;
    path.moveTo(box.topRight());
    path.arcTo(QRectF(box.left(), box.top(), h, h), 90, 180);
    path.arcTo(QRectF(box.right() - 2 * h, box.top() - h, 2 * h, 2 * h), 270, 90);
    path.closeSubpath();
    return path;
}

QPainterPath longLeafTipDown(const QRectF& box) {
    return turnedAbout(box.center(), longLeafTipUp(box));
}

QPainterPath makerLogo() {
    QPainterPath strokes;
    strokes.moveTo(0.19, 0.08);
    strokes.lineTo(0.19, 0.92);
    strokes.moveTo(0.19, 0.5);
    strokes.lineTo(0.6, 0.5);
    strokes.addEllipse(QPointF(0.62, 0.295), 0.19, 0.19);
    strokes.addEllipse(QPointF(0.62, 0.705), 0.19, 0.19);
    QPainterPathStroker stroker;
    stroker.setWidth(0.11);
    stroker.setCapStyle(Qt::FlatCap);
    stroker.setCurveThreshold(0.001); // the square is small: without this circles become polygons
    return stroker.createStroke(strokes);
}

} // namespace selvane
