// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "artwork/DMGBackground.h"

#include <QFont>
#include <QFontMetricsF>
#include <QPainter>
#include <QPainterPath>
#include <QRadialGradient>

#include "artwork/Brand.h"
#include "artwork/PngFile.h"
#include "artwork/Shapes.h"
#include "model/LauncherError.h"
#include "platform/files/FileManager.h"

namespace selvane::DMGBackground {
namespace {

constexpr int kWidth = 680;
constexpr int kHeight = 460;

struct Leaf {
    QRectF box;
    bool tipIsUp;
    QColor color;
};

const QColor kHalfLit(0xA5, 0x8F, 0x62);
const Leaf kFoliage[] = {
    {{-24, 376, 120, 32}, true, Brand::bg2},  {{104, 376, 64, 32}, false, Brand::bg3},
    {{504, 376, 112, 32}, false, Brand::bg2}, {{624, 376, 120, 32}, true, Brand::bg3},
    {{-40, 416, 88, 32}, false, Brand::bg2},  {{56, 416, 136, 32}, true, Brand::bg2},
    {{448, 416, 96, 32}, true, Brand::bg2},   {{552, 416, 72, 32}, false, Brand::bg3},
    {{632, 416, 104, 32}, false, Brand::bg2},
};
/// They lead from the application to its folder. Below each is a leaf on which the system writes the name.
const Leaf kSigns[] = {
    {{292, 240, 24, 12}, true, Brand::lineStrong},  {{326, 240, 28, 12}, true, kHalfLit},
    {{364, 240, 32, 12}, true, Brand::accent},      {{116, 310, 128, 28}, true, Brand::lineStrong},
    {{436, 310, 128, 28}, true, Brand::lineStrong},
};

template <typename Leaves>
void paint(QPainter& painter, const Leaves& leaves) {
    for (const Leaf& leaf : leaves)
        painter.fillPath(leaf.tipIsUp ? longLeafTipUp(leaf.box) : longLeafTipDown(leaf.box), leaf.color);
}

void paintGlow(QPainter& painter) {
    QColor strong = Brand::accent, weak = Brand::accent, none = Brand::accent;
    strong.setAlphaF(0.26F);
    weak.setAlphaF(0.10F);
    none.setAlphaF(0);
    QRadialGradient glow(500, 252, 300);
    glow.setStops({{0, strong}, {0.35, weak}, {1, none}});
    painter.fillRect(0, 0, kWidth, kHeight, glow);
}

struct Run {
    QString text;
    QColor color;
};

/// Paints one centred line, as outlines: hinting would make the two resolutions differ.
void paintLine(QPainter& painter, const QFont& font, qreal top, qreal lineHeight,
               std::initializer_list<Run> runs) {
    const QFontMetricsF metrics(font);
    qreal width = 0;
    for (const Run& run : runs)
        width += metrics.horizontalAdvance(run.text);
    const qreal baseline = top + (lineHeight - metrics.height()) / 2 + metrics.ascent();
    qreal x = (kWidth - width) / 2;
    for (const Run& run : runs) {
        QPainterPath outlines;
        outlines.setFillRule(Qt::WindingFill); // the strokes of a letter overlap
        outlines.addText(x, baseline, font, run.text);
        painter.fillPath(outlines, run.color);
        x += metrics.horizontalAdvance(run.text);
    }
}

void paintTexts(QPainter& painter) {
    QFont display(Brand::displayFamily);
    display.setPixelSize(36);
    display.setWeight(QFont::ExtraBold);
    display.setLetterSpacing(QFont::AbsoluteSpacing, -0.9);
    display.setHintingPreference(QFont::PreferNoHinting);
    paintLine(painter, display, 52, 44, {{"Trascina in ", Brand::fg}, {"Applicazioni.", Brand::accent}});

    QFont serif(Brand::serifFamily);
    serif.setPixelSize(22);
    serif.setItalic(true);
    serif.setHintingPreference(QFont::PreferNoHinting);
    paintLine(painter, serif, 100, 28, {{"Poi apri Selvane al posto di Claude", Brand::fg2}});
}

QImage background(int scale) {
    QImage image(kWidth * scale, kHeight * scale, QImage::Format_RGB32);
    if (image.isNull())
        return image;
    image.fill(Brand::bg);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(scale, scale);
    paint(painter, kFoliage);
    paintGlow(painter);
    paint(painter, kSigns);
    paintTexts(painter);
    return image;
}

} // namespace

void render(const std::filesystem::path& folder) {
    FileManager().createFolders(folder);
    for (const int scale : {1, 2}) {
        if (!writePng(background(scale), scale,
                      folder / (scale == 1 ? "background.png" : "background@2x.png")))
            throw LauncherError("Rendering sfondo DMG fallito");
    }
}

} // namespace selvane::DMGBackground
