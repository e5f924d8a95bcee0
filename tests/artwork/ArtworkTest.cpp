// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include <QColor>
#include <QImage>

#include <gtest/gtest.h>

#include "artwork/Brand.h"
#include "artwork/HuePalette.h"
#include "artwork/Icons.h"
#include "artwork/ProfileIcon.h"
#include "support/Command.h"
#include "support/Home.h"

namespace selvane::test {
namespace {

namespace fs = std::filesystem;

constexpr int kDotsAPoint = 2835; // points per metre

QImage read(const fs::path& file) {
    return QImage(QString::fromStdString(file.string()));
}

TEST(Artwork, renderIcon_TenSharpPictures_TheSameEachTime) {
    const CommandHome home;
    const fs::path set = home / "nuova/Sel vane.iconset";
    ASSERT_EQ(home.execute({"render-icon", set.string()}), (Outcome{0, "", ""}));
    const Tree first = treeOf(set);
    EXPECT_EQ(first.size(), 10U);
    for (const int points : {16, 32, 128, 256, 512}) {
        const std::string name = "icon_" + std::to_string(points) + "x" + std::to_string(points);
        EXPECT_EQ(read(set / (name + ".png")).size(), QSize(points, points)) << name;
        EXPECT_EQ(read(set / (name + "@2x.png")).size(), QSize(2 * points, 2 * points)) << name;
    }

    // The mark of the smallest icon is on whole pixels, with two free rows between its leaves.
    const QImage smallest = read(set / "icon_16x16.png");
    EXPECT_EQ(smallest.pixelColor(7, 3), Brand::cool);
    EXPECT_EQ(smallest.pixelColor(7, 6), Brand::cool);
    EXPECT_EQ(smallest.pixelColor(7, 7), smallest.pixelColor(7, 8));
    EXPECT_EQ(smallest.pixelColor(8, 9), Brand::accent);
    EXPECT_EQ(smallest.pixelColor(0, 7).alpha(), 0);
    // The largest icon has a margin with a shadow in it, below rather than above.
    const QImage largest = read(set / "icon_512x512@2x.png");
    EXPECT_EQ(largest.pixelColor(512, 40).alpha(), 0);
    EXPECT_GT(largest.pixelColor(512, 930).alpha(), largest.pixelColor(512, 94).alpha());
    EXPECT_EQ(largest.pixelColor(512, 110).alpha(), 255);

    ASSERT_EQ(home.execute({"render-icon", set.string()}), (Outcome{0, "", ""}));
    EXPECT_EQ(treeOf(set), first);
}

TEST(Artwork, renderDMGBackground_TwoResolutionsOfOneSize_TheSameEachTime) {
    const CommandHome home;
    const fs::path folder = home / "sfondo";
    ASSERT_EQ(home.execute({"render-dmg-background", folder.string()}), (Outcome{0, "", ""}));
    const Tree first = treeOf(folder);
    EXPECT_EQ(first.size(), 2U);
    for (const int scale : {1, 2}) {
        const QImage image = read(folder / (scale == 1 ? "background.png" : "background@2x.png"));
        EXPECT_EQ(image.size(), QSize(680 * scale, 460 * scale));
        EXPECT_NEAR(image.dotsPerMeterX(), kDotsAPoint * scale, 1);
        EXPECT_NEAR(image.dotsPerMeterY(), kDotsAPoint * scale, 1);
        EXPECT_EQ(image.pixelColor(380 * scale, 246 * scale), Brand::accent) << "the last of the signs";
        // The words have colours of their own: some pixel of each line has exactly that colour.
        const auto has = [&](const QRect& box, const QColor& color) {
            for (int y = box.top() * scale; y < box.bottom() * scale; ++y) {
                for (int x = box.left() * scale; x < box.right() * scale; ++x) {
                    if (image.pixelColor(x, y) == color)
                        return true;
                }
            }
            return false;
        };
        EXPECT_TRUE(has({130, 52, 190, 44}, Brand::fg));
        EXPECT_TRUE(has({330, 52, 215, 44}, Brand::accent));
        EXPECT_TRUE(has({200, 100, 280, 28}, Brand::fg2));
    }
    ASSERT_EQ(home.execute({"render-dmg-background", folder.string()}), (Outcome{0, "", ""}));
    EXPECT_EQ(treeOf(folder), first);
}

TEST(Artwork, profileIcon_EverySize_ALeafOfItsOwn) {
    const auto icon = profileIcon({"briefcase", "Genziana"});
    EXPECT_EQ(icon, profileIcon({"briefcase", "Genziana"}));
    EXPECT_EQ(icon.size(), ApplicationEntries::iconSizes().size());
    for (const IconImage& image : icon) {
        const QImage picture = QImage::fromData(QByteArray::fromStdString(image.png));
        const int pixels = image.size.points * image.size.scale;
        EXPECT_EQ(picture.size(), QSize(pixels, pixels));
        EXPECT_NE(image.png.find(kIconMark), std::string::npos) << pixels;
        // Near the bottom there is the body, or the leaf.
        const QColor bottom = picture.pixelColor(pixels / 2, pixels * 86 / 100);
        EXPECT_EQ(bottom.alpha(), 255) << pixels;
        EXPECT_EQ(bottom.lightness() < 64, image.size.points >= 48) << pixels;
    }
    const auto flatLeaf = [](const ProfileLook& look) {
        return profilePicture(look, {32, 1}).pixelColor(16, 3);
    };
    EXPECT_EQ(flatLeaf({"briefcase", "Genziana"}), QColor(0xA0, 0xB6, 0xF9));
    EXPECT_EQ(flatLeaf({"flame", "Sconosciuta"}), Brand::accent);
    EXPECT_NE(profilePicture({"briefcase", ""}, {48, 1}), profilePicture({"flame", ""}, {48, 1}));
}

TEST(Artwork, iconForSymbol_Unknown_IsAPerson) {
    EXPECT_EQ(iconForSymbol("briefcase"), "briefcase");
    EXPECT_EQ(iconForSymbol("nessuno.cosi"), "user-circle");
}

TEST(Artwork, hues_Unlit_TintTheLeafAndUnknownOnesDoNot) {
    const HuePalette hues;
    EXPECT_EQ(hues.leaf("Muschio", false), QColor("#323e2f"));
    EXPECT_EQ(hues.leaf("Lago", false), QColor("#293c3d"));
    EXPECT_EQ(hues.leaf("Ardesia", true), QColor("#b0bcca"));
    EXPECT_EQ(hues.symbol("Erica", false), QColor("#df95c9"));
    EXPECT_EQ(hues.symbol("Erica", true), Brand::bg);
    EXPECT_EQ(hues.leaf("Zafferano", true), Brand::accent);
    EXPECT_EQ(hues.symbol("", false), Brand::cool);
}

TEST(Artwork, render_WhereNothingCanBeWritten_SaysSo) {
    const CommandHome home;
    writeFile(home / "file", "resta");
    for (const char* command : {"render-icon", "render-dmg-background"}) {
        const Outcome outcome = home.execute({command, (home / "file").string()});
        EXPECT_EQ(outcome.status, 1);
        EXPECT_EQ(outcome.out, "");
        EXPECT_TRUE(outcome.err.starts_with("Errore: ")) << outcome.err;
        EXPECT_NE(outcome.err.find((home / "file").string()), std::string::npos) << outcome.err;

        fs::create_directory(home / "chiusa");
        fs::permissions(home / "chiusa", fs::perms::owner_read | fs::perms::owner_exec);
        const Outcome refused = home.runUnprivileged({command, (home / "chiusa/qui").string()});
        EXPECT_EQ(refused.status, 1);
        EXPECT_TRUE(refused.err.starts_with("Errore: ")) << refused.err;
        fs::remove(home / "chiusa");
    }
    EXPECT_EQ(readFile(home / "file"), "resta");
}

} // namespace
} // namespace selvane::test
