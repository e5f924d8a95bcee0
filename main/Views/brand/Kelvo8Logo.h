// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include "Views/controls/PaintedShape.h"

namespace selvane {

/// The maker's small logo. Not for sizes below 16.
class Kelvo8Logo : public selvane::PaintedShape {
    Q_OBJECT
    QML_ELEMENT

    Q_PROPERTY(qreal size MEMBER m_size NOTIFY sizeChanged)

public:
    explicit Kelvo8Logo(QQuickItem* parent = nullptr);

signals:
    void sizeChanged();

protected:
    void paint(QPainter& painter) const override;

private:
    qreal m_size = 0;
};

} // namespace selvane
