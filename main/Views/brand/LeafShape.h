// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include "Views/controls/PaintedShape.h"

namespace selvane {

/// A leaf that fills the item: round except for the tip at the top right. The border is inside.
class LeafShape : public selvane::PaintedShape {
    Q_OBJECT
    QML_ELEMENT

    Q_PROPERTY(qreal tip MEMBER m_tip NOTIFY changed) ///< radius of the tip
    Q_PROPERTY(QColor borderColor MEMBER m_borderColor NOTIFY changed)
    Q_PROPERTY(qreal borderWidth MEMBER m_borderWidth NOTIFY changed)

public:
    using PaintedShape::PaintedShape;

protected:
    void paint(QPainter& painter) const override;

private:
    qreal m_tip = 0;
    QColor m_borderColor = Qt::transparent;
    qreal m_borderWidth = 0;
};

} // namespace selvane
