// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "artwork/IconBody.h"

#include <QImage>
#include <QPainterPath>
#include <QRadialGradient>

#include <algorithm>
#include <cmath>
#include <vector>

namespace selvane {
namespace {

QPainterPath roundedRect(const QRectF& box, qreal radius) {
    QPainterPath path;
    path.addRoundedRect(box, radius, radius);
    return path;
}

QColor withAlpha(QColor color, qreal alpha) {
    color.setAlphaF(static_cast<float>(alpha));
    return color;
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
    const qreal scale = pixels / kIconCanvas;
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

} // namespace

QLinearGradient verticalGradient(const QRectF& box, const QGradientStops& stops) {
    QLinearGradient gradient(box.topLeft(), box.bottomLeft());
    gradient.setStops(stops);
    return gradient;
}

void paintIconBody(QPainter& painter, int pixels, const IconGlow& glow) {
    painter.scale(pixels / kIconCanvas, pixels / kIconCanvas);
    const QRectF box(100, 100, 824, 824);
    const QPainterPath body = roundedRect(box, 185);
    paintShadow(painter, pixels, body);
    painter.fillPath(body, verticalGradient(box, {{0, "#2a3b34"}, {1, "#0f1714"}}));

    QRadialGradient light(glow.centre, 420);
    light.setStops({{0, withAlpha(glow.color, glow.strength)},
                    {0.55, withAlpha(glow.color, glow.strength * 4 / 15)},
                    {1, withAlpha(glow.color, 0)}});
    painter.fillPath(body, light);

    const QPainterPath inside = roundedRect(box.adjusted(4, 4, -4, -4), 181);
    painter.fillPath(body - inside, verticalGradient(box, {{0, withAlpha(Qt::white, 0.22)},
                                                           {0.5, withAlpha(Qt::white, 0.04)},
                                                           {1, withAlpha(Qt::white, 0.02)}}));
}

} // namespace selvane
