// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "Views/shell/WindowPlace.h"

#include <gtest/gtest.h>

namespace selvane::test {
namespace {

QVariantMap properties(int width, int height) {
    return {{"width", width}, {"height", height}};
}

TEST(WindowPlaceTest, aWindowComesBackWhereItCanBeReached) {
    const QRect screen(0, 24, 1600, 1176);
    const QRect beside(1600, 0, 1000, 800);
    const auto again = [&](const QRect& place) { return placeAgain(place, {screen, beside}); };
    EXPECT_EQ(again({}), QVariantMap());

    QVariantMap expected = properties(980, 660);
    expected.insert({{"x", 100}, {"y", 90}});
    EXPECT_EQ(again({100, 90, 980, 660}), expected);
    EXPECT_EQ(again({3000, 90, 980, 660}), properties(980, 660)) << "that screen is gone";
    EXPECT_EQ(again({-940, 90, 980, 660}), properties(980, 660)) << "too little to take hold of";
    EXPECT_EQ(again({100, 1300, 980, 660}), properties(980, 660)) << "below the screen";

    expected = properties(1000, 760);
    expected.insert({{"x", 1610}, {"y", 40}});
    EXPECT_EQ(again({1610, 40, 1960, 1320}), expected) << "no larger than the screen that it was on";
    EXPECT_EQ(placeAgain({0, 0, 1960, 1320}, {}), QVariantMap());
}

} // namespace
} // namespace selvane::test
