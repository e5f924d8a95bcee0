// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include "Views/controls/PaintedShape.h"

namespace selvane {

/// Covers content that extends into rounded corners: draws a border, and the surrounding colour outside it.
class RoundedFrame : public selvane::PaintedShape {
    Q_OBJECT
    QML_ELEMENT

    Q_PROPERTY(qreal radius MEMBER m_radius NOTIFY changed)
    Q_PROPERTY(QColor outside MEMBER m_outside NOTIFY changed)

public:
    using PaintedShape::PaintedShape;

protected:
    void paint(QPainter& painter) const override;

private:
    qreal m_radius = 0;
    QColor m_outside;
};

} // namespace selvane
