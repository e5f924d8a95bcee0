// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "artwork/AppIcon.h"

#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <QRadialGradient>

#include <algorithm>
#include <cmath>
#include <iterator>
#include <vector>

#include "artwork/Brand.h"
#include "artwork/Shapes.h"
#include "artwork/SvgPath.h"

namespace selvane {
namespace {

constexpr qreal kCanvas = 1024;
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

QPainterPath roundedRect(const QRectF& box, qreal radius) {
    QPainterPath path;
    path.addRoundedRect(box, radius, radius);
    return path;
}

QColor withAlpha(QColor color, qreal alpha) {
    color.setAlphaF(static_cast<float>(alpha));
    return color;
}

QLinearGradient vertical(const QRectF& box, const QGradientStops& stops) {
    QLinearGradient gradient(box.topLeft(), box.bottomLeft());
    gradient.setStops(stops);
    return gradient;
}

std::vector<qreal> gaussian(qreal deviation) {
    const int reach = static_cast<int>(std::ceil(3 * deviation));
    std::vector<qreal> weights;
    qreal sum = 0;
    for (int i = -reach; i <= reach; ++i) {
        weights.push_back(std::exp(-i * i / (2 * deviation * deviation)));
        sum += weights.back();
    }
    for (qreal& weight : weights)
        weight /= sum;
    return weights;
}

/// Blurs in one direction and turns the result by 90 degrees, so two calls make a whole blur.
QImage blurredAndTurned(const QImage& mask, const std::vector<qreal>& weights) {
    const int width = mask.width();
    QImage result(mask.height(), width, QImage::Format_Alpha8);
    uchar* const turned = result.bits();
    const qsizetype stride = result.bytesPerLine();
    const auto pixels = static_cast<std::size_t>(width);
    std::vector<qreal> line(pixels + weights.size()); // nothing lies on either side of the mask
    std::vector<qreal> sums(pixels);
    for (int y = 0; y < mask.height(); ++y) {
        std::copy_n(mask.constScanLine(y), width, line.data() + weights.size() / 2);
        std::fill(sums.begin(), sums.end(), 0);
        // In this order the compiler takes several pixels at a time.
        for (std::size_t i = 0; i < weights.size(); ++i) {
            for (std::size_t x = 0; x < pixels; ++x)
                sums[x] += weights[i] * line[x + i];
        }
        for (int x = 0; x < width; ++x)
            turned[x * stride + y] = static_cast<uchar>(std::lround(sums[static_cast<std::size_t>(x)]));
    }
    return result;
}

/// Paints the shadow of `path`, given in canvas coordinates.
void paintShadow(QPainter& painter, int pixels, const QPainterPath& path) {
    const qreal scale = pixels / kCanvas;
    QImage mask(pixels, pixels, QImage::Format_Alpha8);
    mask.fill(0);
    {
        QPainter drawing(&mask);
        drawing.setRenderHint(QPainter::Antialiasing);
        drawing.scale(scale, scale);
        drawing.fillPath(path.translated(0, 12), withAlpha(Qt::black, 0.35));
    }
    const auto weights = gaussian(14 * scale);
    painter.save();
    painter.resetTransform();
    painter.drawImage(0, 0, blurredAndTurned(blurredAndTurned(mask, weights), weights));
    painter.restore();
}

void paintWithDepth(QPainter& painter, int pixels) {
    painter.scale(pixels / kCanvas, pixels / kCanvas);
    const QRectF box(100, 100, 824, 824);
    const QPainterPath body = roundedRect(box, 185);
    paintShadow(painter, pixels, body);
    painter.fillPath(body, vertical(box, {{0, "#2a3b34"}, {1, "#0f1714"}}));

    QRadialGradient glow(480, 652, 420);
    glow.setStops({{0, withAlpha(Brand::accent, 0.30)},
                   {0.55, withAlpha(Brand::accent, 0.08)},
                   {1, withAlpha(Brand::accent, 0)}});
    painter.fillPath(body, glow);

    const QPainterPath inside = roundedRect(box.adjusted(4, 4, -4, -4), 181);
    painter.fillPath(body - inside, vertical(box, {{0, withAlpha(Qt::white, 0.22)},
                                                   {0.5, withAlpha(Qt::white, 0.04)},
                                                   {1, withAlpha(Qt::white, 0.02)}}));

    painter.translate(212, 212);
    painter.scale(600, 600);
    const QPainterPath upper = markUpperLeaf(), lower = markLowerLeaf();
    painter.fillPath(upper, vertical(upper.boundingRect(), {{0, "#a9d2cd"}, {1, "#78aaa5"}}));
    painter.fillPath(lower, vertical(lower.boundingRect(), {{0, "#fad08c"}, {1, "#eba947"}}));
}

void paintFlat(QPainter& painter, int pixels) {
    const FlatDesign& design = flatDesign(pixels);
    const qreal scale = static_cast<qreal>(pixels) / design.grid;
    painter.scale(scale, scale);
    painter.fillPath(roundedRect(design.body, design.radius), QColor("#1d2a25"));
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
