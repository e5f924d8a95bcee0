// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "Views/brand/BrandMark.h"

#include "artwork/Brand.h"
#include "artwork/Shapes.h"

namespace selvane {

BrandMark::BrandMark(QQuickItem* parent)
    : PaintedShape(parent), m_upper(Brand::cool), m_lower(Brand::accent) {
    connect(this, &BrandMark::sizeChanged, this, [this] { setSide(m_size); });
}

void BrandMark::paint(QPainter& painter) const {
    const bool gridded = m_size <= 16;
    fill(painter, markUpperLeaf(gridded), 1, m_upper);
    fill(painter, markLowerLeaf(gridded), 1, m_lower);
}

} // namespace selvane
