// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "Views/brand/Foliage.h"

#include <QPainter>

#include "artwork/Brand.h"
#include "artwork/Shapes.h"

namespace selvane {
namespace {

enum class Tip { up, down };

struct Leaf {
    int row;
    Tip tip;
    qreal offset; ///< from the right edge to the leaf's left end; leaves may extend past that edge
    qreal width;
    const QColor& color;
};

constexpr qreal kLeafHeight = 40;
constexpr qreal kRowStep = kLeafHeight + 8;

const Leaf kLeaves[] = {
    {0, Tip::up, 320, 176, Brand::bg2},   {0, Tip::down, 152, 192, Brand::bg3},
    {1, Tip::down, 248, 112, Brand::bg3}, {1, Tip::up, 128, 72, Brand::line},
    {1, Tip::down, 48, 104, Brand::bg2},  {2, Tip::down, 392, 144, Brand::bg2},
    {2, Tip::up, 240, 128, Brand::bg3},   {2, Tip::down, 104, 160, Brand::bg2},
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
