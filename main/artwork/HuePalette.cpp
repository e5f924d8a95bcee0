// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "artwork/HuePalette.h"

#include <array>

#include "artwork/Brand.h"

namespace selvane {
namespace {

struct HueColors {
    QRgb hue;
    QRgb lit;
};

constexpr std::array<HueColors, kHues.size()> kColors = {{
    {0xBDC668, 0xCED787},
    {0xD3CAB1, 0xE3DCC6},
    {0xDC9976, 0xE8AD8E},
    {0xDF95C9, 0xEBABD8},
    {0xBC9DE7, 0xCBB1F2},
    {0x8CA4F0, 0xA0B6F9},
    {0x71BCDF, 0x8ECCEB},
    {0x9EABBB, 0xB0BCCA},
}};

constexpr double kTint = 0.12; ///< how much of its hue an unlit leaf has

int mixed(int base, int hue) {
    return qRound(base + (hue - base) * kTint);
}

std::optional<Hue> hueNamed(const QString& name) {
    return ProfileLook{.color = name.toStdString()}.hue();
}

} // namespace

LeafColors HuePalette::colors(std::optional<Hue> hue) {
    const QColor& base = Brand::bg3;
    if (!hue)
        return {base, Brand::cool, Brand::accent};
    const HueColors& colors = kColors.at(static_cast<std::size_t>(*hue));
    const QColor symbol(colors.hue);
    const QColor leaf(mixed(base.red(), symbol.red()), mixed(base.green(), symbol.green()),
                      mixed(base.blue(), symbol.blue()));
    return {leaf, symbol, QColor(colors.lit)};
}

QStringList HuePalette::names() {
    QStringList names;
    for (const Hue hue : kHues)
        names.append(QString::fromStdString(std::string(name(hue))));
    return names;
}

bool HuePalette::has(const QString& name) const {
    return hueNamed(name).has_value();
}

QColor HuePalette::leaf(const QString& name, bool isLit) const {
    const LeafColors of = colors(hueNamed(name));
    return isLit ? of.litLeaf : of.leaf;
}

QColor HuePalette::symbol(const QString& name, bool isLit) const {
    return isLit ? Brand::bg : colors(hueNamed(name)).symbol;
}

} // namespace selvane
