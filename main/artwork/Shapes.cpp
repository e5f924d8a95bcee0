// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "artwork/Shapes.h"

#include <QTransform>

#include <algorithm>

#include "artwork/SvgPath.h"

namespace selvane {
namespace {

QPainterPath turnedAbout(QPointF centre, const QPainterPath& path) {
    return QTransform(-1, 0, 0, -1, 2 * centre.x(), 2 * centre.y()).map(path);
}

constexpr qreal kLogoLine = 0.11;

void addLogoRing(QPainterPath& path, QPointF centre) {
    constexpr qreal kRadius = 0.19; // to the middle of the line
    QPainterPath hole;
    hole.addEllipse(centre, kRadius - kLogoLine / 2, kRadius - kLogoLine / 2);
    path.addEllipse(centre, kRadius + kLogoLine / 2, kRadius + kLogoLine / 2);
    path.addPath(hole.toReversed());
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
    QPainterPath path;
    path.setFillRule(Qt::WindingFill);
    path.addRect(0.19 - kLogoLine / 2, 0.08, kLogoLine, 0.84);
    path.addRect(0.19, 0.5 - kLogoLine / 2, 0.41, kLogoLine);
    addLogoRing(path, {0.62, 0.295});
    addLogoRing(path, {0.62, 0.705});
    return path;
}

} // namespace selvane
