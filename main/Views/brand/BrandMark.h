// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include "Views/controls/PaintedShape.h"

namespace selvane {

/// The mark: two leaves, the lower one lit.
class BrandMark : public selvane::PaintedShape {
    Q_OBJECT
    QML_ELEMENT

    Q_PROPERTY(qreal size MEMBER m_size NOTIFY sizeChanged)
    Q_PROPERTY(QColor upper MEMBER m_upper NOTIFY changed)
    Q_PROPERTY(QColor lower MEMBER m_lower NOTIFY changed)

public:
    explicit BrandMark(QQuickItem* parent = nullptr);

signals:
    void sizeChanged();

protected:
    void paint(QPainter& painter) const override;

private:
    qreal m_size = 0;
    QColor m_upper;
    QColor m_lower;
};

} // namespace selvane
