// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QColor>
#include <QPainterPath>
#include <QQmlEngine>
#include <QQuickItem>

namespace selvane {

/// Base of the drawn items. Each paints into its own image, which looks the same with every renderer and
/// scale and needs no multisampling. Emit `changed` to repaint. Derived classes must name this one with its
/// namespace, or Qt's type descriptions lose the base class.
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
    /// Makes the item a square with this side unless it is given another size.
    void setSide(qreal side) { setImplicitSize(side, side); }
    /// Paints a path drawn in a square of side `box`, centred and as large as fits.
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
