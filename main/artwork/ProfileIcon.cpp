// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "artwork/ProfileIcon.h"

#include <QBuffer>
#include <QPainter>

#include "artwork/Brand.h"
#include "artwork/HuePalette.h"
#include "artwork/IconBody.h"
#include "artwork/Icons.h"
#include "artwork/PngFile.h"
#include "artwork/Shapes.h"
#include "model/LauncherError.h"

namespace selvane {
namespace {

constexpr int kSmallestWithBody = 48; // points
constexpr int kSmallestRegular = 64;  // points: below, strokes are bold

/// The colours of a lit leaf.
struct Light {
    QColor upper;
    QColor lower;
    QColor flat;
    QColor glow;
};

Light lightOf(const ProfileLook& look) {
    const auto hue = look.hue();
    if (!hue)
        return {"#fad08c", "#eba947", Brand::accent, Brand::accent};
    const LeafColors colors = HuePalette::colors(hue);
    return {colors.litLeaf, colors.symbol, colors.litLeaf, colors.symbol};
}

/// Where a leaf without a body lies, in points: on whole pixels, with more of a margin the more room there
/// is.
struct SmallLeaf {
    int points;
    qreal margin;
    qreal symbol; ///< the side of its box
};
constexpr SmallLeaf kSmallLeaves[] = {{32, 2, 18}, {24, 1, 14}, {22, 1, 12}, {16, 0, 10}};

const SmallLeaf& smallLeaf(int points) {
    for (const SmallLeaf& leaf : kSmallLeaves) {
        if (points >= leaf.points)
            return leaf;
    }
    return *(std::end(kSmallLeaves) - 1);
}

/// Paints the symbol in a square around a point.
void paintSymbol(QPainter& painter, const ProfileLook& look, IconWeight weight, QPointF centre, qreal side) {
    painter.save();
    painter.translate(centre - QPointF(side, side) / 2);
    painter.scale(side / kIconBox, side / kIconBox);
    painter.fillPath(iconPath(iconForSymbol(look.symbol), weight), Brand::bg);
    painter.restore();
}

void paintOnBody(QPainter& painter, const ProfileLook& look, const IconSize& size) {
    constexpr qreal kTip = 34;
    constexpr qreal kSymbol = 320;
    const Light light = lightOf(look);
    const QRectF box(232, 232, 560, 560);
    paintIconBody(painter, size.points * size.scale, {light.glow, {512, 620}, 0.16});
    painter.fillPath(leafPath(box, kTip), verticalGradient(box, {{0, light.upper}, {1, light.lower}}));
    paintSymbol(painter, look, size.points < kSmallestRegular ? IconWeight::bold : IconWeight::regular,
                box.center(), kSymbol);
}

void paintAlone(QPainter& painter, const ProfileLook& look, const IconSize& size) {
    constexpr qreal kTip = 1;
    const SmallLeaf& leaf = smallLeaf(size.points);
    painter.scale(static_cast<qreal>(size.points) * size.scale / leaf.points,
                  static_cast<qreal>(size.points) * size.scale / leaf.points);
    const qreal side = leaf.points - 2 * leaf.margin;
    const QRectF box(leaf.margin, leaf.margin, side, side);
    painter.fillPath(leafPath(box, kTip), lightOf(look).flat);
    paintSymbol(painter, look, IconWeight::bold, box.center(), leaf.symbol);
}

} // namespace

QImage profilePicture(const ProfileLook& look, const IconSize& size) {
    const int pixels = size.points * size.scale;
    QImage image(pixels, pixels, QImage::Format_ARGB32_Premultiplied);
    if (image.isNull())
        return image;
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    if (size.points >= kSmallestWithBody)
        paintOnBody(painter, look, size);
    else
        paintAlone(painter, look, size);
    return image;
}

std::vector<IconImage> profileIcon(const ProfileLook& look) {
    std::vector<IconImage> icon;
    for (const IconSize& size : ApplicationEntries::iconSizes()) {
        QImage picture = profilePicture(look, size);
        picture.setText(QStringLiteral("Software"), Brand::name);
        const QByteArray bytes = pngBytes(std::move(picture), size.scale);
        if (bytes.isEmpty())
            throw LauncherError("Disegno dell'icona non riuscito");
        icon.push_back({size, bytes.toStdString()});
    }
    return icon;
}

} // namespace selvane
