// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QColor>
#include <QPainterPath>
#include <QQmlEngine>
#include <QQuickItem>

namespace selvane {

/// What the drawn items share: each paints into an image of its own, which looks the same under every
/// renderer, also scaled, and needs no multisampling. Emitting `changed` paints anew. What derives from it
/// names it with its namespace: Qt's type descriptions lose the base class otherwise.
class PaintedShape : public QQuickItem {
    Q_OBJECT
    QML_ANONYMOUS

    Q_PROPERTY(QColor color MEMBER m_color NOTIFY changed)

public:
    explicit PaintedShape(QQuickItem* parent = nullptr);

signals:
    void changed();

protected:
    virtual void paint(QPainter& painter) const = 0;
    /// Makes the item a square of this side unless it is given another size.
    void setSide(qreal side) { setImplicitSize(side, side); }
    /// Paints a path that is drawn in a square of side `box`, as large as fits, in the middle.
    void fill(QPainter& painter, const QPainterPath& path, qreal box, const QColor& color) const;

    void geometryChange(const QRectF& now, const QRectF& before) override;
    void itemChange(ItemChange change, const ItemChangeData& data) override;
    QSGNode* updatePaintNode(QSGNode* node, UpdatePaintNodeData* data) override;

    QColor m_color = Qt::transparent;

private:
    void paintAnew();
    QImage image() const;

    bool m_isStale = true;
};

} // namespace selvane
