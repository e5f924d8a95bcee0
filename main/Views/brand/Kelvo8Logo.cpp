// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "Views/brand/Kelvo8Logo.h"

#include "artwork/Shapes.h"

namespace selvane {

Kelvo8Logo::Kelvo8Logo(QQuickItem* parent) : PaintedShape(parent) {
    connect(this, &Kelvo8Logo::sizeChanged, this, [this] { setSide(m_size); });
}

void Kelvo8Logo::paint(QPainter& painter) const {
    fill(painter, makerLogo(), 1, m_color);
}

} // namespace selvane
