// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include "Views/controls/PaintedShape.h"

namespace selvane {

/// Three rows of long leaves that decorate the right edge of a window. Align its right edge with the
/// window's.
class Foliage : public selvane::PaintedShape {
    Q_OBJECT
    QML_ELEMENT

public:
    explicit Foliage(QQuickItem* parent = nullptr);

protected:
    void paint(QPainter& painter) const override;
};

} // namespace selvane
