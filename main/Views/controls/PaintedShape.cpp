// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "Views/controls/PaintedShape.h"

#include <QImage>
#include <QPainter>
#include <QQuickWindow>
#include <QSGImageNode>

#include <algorithm>
#include <cmath>

namespace selvane {

PaintedShape::PaintedShape(QQuickItem* parent) : QQuickItem(parent) {
    setFlag(ItemHasContents);
    connect(this, &PaintedShape::changed, this, &PaintedShape::paintAnew);
}

void PaintedShape::fill(QPainter& painter, const QPainterPath& path, qreal box, const QColor& color) const {
    const qreal side = std::min(width(), height());
    painter.save();
    painter.translate((width() - side) / 2, (height() - side) / 2);
    painter.scale(side / box, side / box);
    painter.fillPath(path, color);
    painter.restore();
}

void PaintedShape::paintAnew() {
    m_isStale = true;
    update();
}

void PaintedShape::geometryChange(const QRectF& now, const QRectF& before) {
    QQuickItem::geometryChange(now, before);
    if (now.size() != before.size())
        paintAnew();
}

void PaintedShape::itemChange(ItemChange change, const ItemChangeData& data) {
    QQuickItem::itemChange(change, data);
    if (change == ItemDevicePixelRatioHasChanged)
        paintAnew();
}

QImage PaintedShape::image() const {
    const qreal ratio = window()->effectiveDevicePixelRatio();
    const QSize pixels(static_cast<int>(std::ceil(width() * ratio)),
                       static_cast<int>(std::ceil(height() * ratio)));
    QImage image(pixels, QImage::Format_ARGB32_Premultiplied);
    if (image.isNull())
        return image;
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(ratio, ratio);
    paint(painter);
    return image;
}

QSGNode* PaintedShape::updatePaintNode(QSGNode* node, UpdatePaintNodeData* /*data*/) {
    auto* shown = static_cast<QSGImageNode*>(node);
    if (shown != nullptr && !m_isStale)
        return shown;
    const QImage painted = image();
    if (painted.isNull()) {
        delete shown;
        return nullptr;
    }
    if (shown == nullptr) {
        shown = window()->createImageNode();
        shown->setOwnsTexture(true);
        shown->setFiltering(QSGTexture::Linear);
    }
    shown->setTexture(window()->createTextureFromImage(painted, QQuickWindow::TextureCanUseAtlas));
    // Whole pixels, so that an item with a fractional size has no blurred edge.
    shown->setRect({{}, QSizeF(painted.size()) / window()->effectiveDevicePixelRatio()});
    m_isStale = false;
    return shown;
}

} // namespace selvane
