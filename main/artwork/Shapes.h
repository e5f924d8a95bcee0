// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QPainterPath>
#include <QRectF>
#include <QSizeF>

namespace selvane {

/// A leaf: its corners are rounded by half the shorter side, except for the tip at the top right.
QPainterPath leafPath(const QRectF& box, qreal tip);

/// The two leaves of the mark in the unit square. `gridded` gives the variant whose corners are on whole
/// pixels when drawn 16 pixels wide.
QPainterPath markUpperLeaf(bool gridded = false);
QPainterPath markLowerLeaf(bool gridded = false);

/// The long leaves of the foliage, with the tip at the top right or at the bottom left.
QPainterPath longLeafTipUp(const QRectF& box);
QPainterPath longLeafTipDown(const QRectF& box);

/// The maker's logo in the unit square, to be filled.
QPainterPath makerLogo();

} // namespace selvane
