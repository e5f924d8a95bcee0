// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "artwork/AppIcon.h"

#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <iterator>

#include "artwork/Brand.h"
#include "artwork/IconBody.h"
#include "artwork/Shapes.h"
#include "artwork/SvgPath.h"

namespace selvane {
namespace {

constexpr int kSmallestWithDepth = 64;

/// The design for smaller sizes, with all edges on the lines of a grid.
struct FlatDesign {
    int grid;
    QRectF body;
    qreal radius;
    const char* upper;
    const char* lower;
};

// The last one also serves every size that is no multiple of a grid.
const FlatDesign kFlatDesigns[] = {
    {32,
     {3, 3, 26, 26},
     6,
     "M25,8H13A3.5,3.5 0 0 0 13,15H18A7,7 0 0 0 25,8Z",
     "M7,24H19A3.5,3.5 0 0 0 19,17H14A7,7 0 0 0 7,24Z"},
    {24,
     {2, 2, 20, 20},
     5,
     "M19,6H9.5A2.5,2.5 0 0 0 9.5,11H14A5,5 0 0 0 19,6Z",
     "M5,18H14.5A2.5,2.5 0 0 0 14.5,13H10A5,5 0 0 0 5,18Z"},
    {22,
     {1, 1, 20, 20},
     5,
     "M18,5H8.5A2.5,2.5 0 0 0 8.5,10H13A5,5 0 0 0 18,5Z",
     "M4,17H13.5A2.5,2.5 0 0 0 13.5,12H9A5,5 0 0 0 4,17Z"},
    {18,
     {1, 1, 16, 16},
     4,
     "M15,4H7A2,2 0 0 0 7,8H11A4,4 0 0 0 15,4Z",
     "M3,14H11A2,2 0 0 0 11,10H7A4,4 0 0 0 3,14Z"},
    {16,
     {1, 1, 14, 14},
     3.5,
     "M13,3H6A2,2 0 0 0 6,7H9A4,4 0 0 0 13,3Z",
     "M3,13H10A2,2 0 0 0 10,9H7A4,4 0 0 0 3,13Z"},
};

const FlatDesign& flatDesign(int pixels) {
    const auto* const last = std::end(kFlatDesigns) - 1;
    return *std::find_if(std::begin(kFlatDesigns), last,
                         [pixels](const FlatDesign& design) { return pixels % design.grid == 0; });
}

void paintWithDepth(QPainter& painter, int pixels) {
    paintIconBody(painter, pixels, {Brand::accent, {480, 652}, 0.30});
    painter.translate(212, 212);
    painter.scale(600, 600);
    const QPainterPath upper = markUpperLeaf(), lower = markLowerLeaf();
    painter.fillPath(upper, verticalGradient(upper.boundingRect(), {{0, "#a9d2cd"}, {1, "#78aaa5"}}));
    painter.fillPath(lower, verticalGradient(lower.boundingRect(), {{0, "#fad08c"}, {1, "#eba947"}}));
}

void paintFlat(QPainter& painter, int pixels) {
    const FlatDesign& design = flatDesign(pixels);
    const qreal scale = static_cast<qreal>(pixels) / design.grid;
    painter.scale(scale, scale);
    QPainterPath body;
    body.addRoundedRect(design.body, design.radius, design.radius);
    painter.fillPath(body, QColor("#1d2a25"));
    painter.fillPath(svgPath(design.upper), Brand::cool);
    painter.fillPath(svgPath(design.lower), Brand::accent);
}

} // namespace

QImage appIcon(int pixels) {
    QImage image(pixels, pixels, QImage::Format_ARGB32_Premultiplied);
    if (image.isNull())
        return image;
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    if (pixels >= kSmallestWithDepth)
        paintWithDepth(painter, pixels);
    else
        paintFlat(painter, pixels);
    return image;
}

} // namespace selvane
