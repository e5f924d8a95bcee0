// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "Views/picker/PickerModel.h"

#include "AppModel/AppModelFixture.h"
#include "Views/manage/ProfileListModel.h"

namespace selvane::test {
namespace {

class PickerModelTest : public AppModelTest {
protected:
    PickerModelTest() {
        for (const char* name : {"Bea", "alfa"})
            home.make(name);
        picker.setProperty("app", QVariant::fromValue(&model()));
        rows.setApp(&model());
        picker.setProperty("rows", QVariant::fromValue<QAbstractItemModel*>(&rows));
    }
    ProfileListModel rows;
    PickerModel picker;
};

TEST_F(PickerModelTest, move_GoesRoundBothEnds) {
    picker.begin();
    QStringList visited = {picker.focused()};
    for (const int step : {-1, -1, -1, 1, 1}) {
        EXPECT_TRUE(picker.move(step));
        visited += picker.focused();
    }
    EXPECT_EQ(visited, (QStringList{"default", "bea", "alfa", "default", "alfa", "bea"}));
    picker.setFocused("andato");
    picker.move(1);
    EXPECT_EQ(picker.focused(), "alfa") << "from the first place when the focus is nowhere";
    EXPECT_EQ(model().selection(), "default") << "the focus is the picker's own";
}

TEST_F(PickerModelTest, keys_LaunchOnlyWhatIsThere) {
    for (const char* digits : {"0", "4", "x", "", "-1"})
        EXPECT_FALSE(picker.launchNumber(digits)) << digits;
    picker.setFocused("");
    EXPECT_FALSE(picker.launchFocused());
    EXPECT_EQ(model().busyMessage(), "");

    EXPECT_TRUE(picker.launchNumber("3"));
    waitUntilIdle();
    picker.setFocused("alfa");
    EXPECT_TRUE(picker.launchFocused());
    waitUntilIdle();
    EXPECT_EQ(home.store.activeID(), "alfa");
    PickerModel next;
    next.setApp(&model());
    next.setProperty("rows", QVariant::fromValue<QAbstractItemModel*>(&rows));
    next.begin();
    EXPECT_EQ(next.focused(), "alfa") << "the profile launched last";
    next.begin();
    EXPECT_EQ(next.focused(), "default") << "the selected one";
    model().select("bea");
    EXPECT_EQ(next.focused(), "bea");
    EXPECT_TRUE(home.store.profile("bea")->meta.lastLaunched);
}

} // namespace
} // namespace selvane::test
