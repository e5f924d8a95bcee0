// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "Views/Foliage.h"

#include <QPainter>

#include "artwork/Brand.h"
#include "artwork/Shapes.h"

namespace selvane {
namespace {

enum class Tip { up, down };

struct Leaf {
    int row;
    qreal offset; ///< of its left end from the right edge; leaves may reach beyond that
    qreal width;
    Tip tip;
    const QColor& color;
};

constexpr qreal kLeafHeight = 40;
constexpr qreal kRowStep = kLeafHeight + 8;

const Leaf kLeaves[] = {
    {0, 320, 176, Tip::up, Brand::bg2},   {0, 152, 192, Tip::down, Brand::bg3},
    {1, 248, 112, Tip::down, Brand::bg3}, {1, 128, 72, Tip::up, Brand::line},
    {1, 48, 104, Tip::down, Brand::bg2},  {2, 392, 144, Tip::down, Brand::bg2},
    {2, 240, 128, Tip::up, Brand::bg3},   {2, 104, 160, Tip::down, Brand::bg2},
};

} // namespace

Foliage::Foliage(QQuickItem* parent) : PaintedShape(parent) {
    setImplicitSize(392, 2 * kRowStep + kLeafHeight);
}

void Foliage::paint(QPainter& painter) const {
    for (const Leaf& leaf : kLeaves) {
        const QRectF box(width() - leaf.offset, leaf.row * kRowStep, leaf.width, kLeafHeight);
        painter.fillPath(leaf.tip == Tip::up ? longLeafTipUp(box) : longLeafTipDown(box), leaf.color);
    }
}

} // namespace selvane
