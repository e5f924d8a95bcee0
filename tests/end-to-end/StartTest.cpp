// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "end-to-end/WindowsTest.h"

namespace selvane::test {
namespace {

TEST_F(Windows, ASecondStartShowsThePickerOfTheFirst) {
    auto selvane = start();
    press({XK_Control_L, ','});
    selvane.waitForWindow("Impostazioni");
    EXPECT_EQ(home.execute({}), Outcome{});
    selvane.waitForWindow("Selvane");
}

TEST_F(Windows, AStartCanAskForANewProfile) {
    auto selvane = start({"--new-profile"});
    selvane.waitForFocus("Nome");
    press({XK_Escape});
    selvane.waitUntilGone(ATSPI_ROLE_DIALOG, "Nuovo profilo");
    press({XK_Control_L, ','});
    selvane.waitForWindow("Impostazioni");
    EXPECT_EQ(home.execute({"--new-profile"}), Outcome{});
    selvane.waitForWindow("Selvane");
    selvane.waitForFocus("Nome");
}

TEST_F(Windows, ADisplayThatIsMissingIsNoCrash) {
    const Outcome expected =
        failure("Nessuno schermo disponibile: senza, Selvane si usa con i suoi comandi (selvane --help)");
    home.environment["DISPLAY"] = ":9999";
    EXPECT_EQ(home.execute({}), expected);
    home.environment.erase("DISPLAY");
    EXPECT_EQ(home.execute({}), expected);
}

} // namespace
} // namespace selvane::test
