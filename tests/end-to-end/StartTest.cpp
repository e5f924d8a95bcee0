// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include <algorithm>

#include "end-to-end/WindowsTest.h"

namespace selvane::test {
namespace {

namespace fs = std::filesystem;

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

TEST_F(Windows, AStartCanAskForTheManagementWindow) {
    auto selvane = start({"--manage"});
    selvane.waitForWindow("Impostazioni");
    press({XK_Control_L, '0'});
    selvane.waitForWindow("Selvane");
    EXPECT_EQ(home.execute({"--manage"}), Outcome{});
    selvane.waitForWindow("Impostazioni");
}

TEST_F(Windows, AStartAfterACrashIsAFirstOne) {
    {
        auto crashed = start();
        crashed.crash();
        EXPECT_EQ(crashed.status(), 128 + SIGKILL);
    }
    auto selvane = start();
    press({XK_Control_L, ','});
    selvane.waitForWindow("Impostazioni");
    EXPECT_EQ(home.execute({}), Outcome{});
    selvane.waitForWindow("Selvane");
}

TEST_F(Windows, WhatHappensOutsideShowsAtOnce) {
    auto selvane = start();
    const auto waitForTile = [&](const std::string& name, const std::string& status) {
        waitUntil(
            [&] {
                const auto all = selvane.everything();
                return std::any_of(all.begin(), all.end(), [&](const Seen& seen) {
                    return seen.name() == name && seen.description().find(status) != std::string::npos;
                });
            },
            name + ": " + status);
    };
    home.output({"create", "Lavoro"});
    waitForTile("Lavoro", "Mai avviato");
    selvane.waitForFocus("Principale");
    for (int i = 0; i < 2; ++i) {
        const Json copy = launch("lavoro", lavoroData);
        waitForTile("Lavoro", "Aperto");
        quit(copy);
        waitForTile("Lavoro", "ora");
    }
}

TEST_F(Manage, WhatIsToldShowsInTheWindowInFront_AndComingBackLooksAgain) {
    writeFile(home / "altrove.md", "x");
    fs::create_symlink(home / "altrove.md", profile("lavoro") / "skills/altrove.md");
    fs::remove(program);
    auto selvane = start();
    selectLavoro(selvane);
    const auto waitForOrigin = [&](const std::string& origin) {
        waitUntil(
            [&] {
                const auto all = selvane.everything();
                return std::any_of(all.begin(), all.end(), [&](const Seen& seen) {
                    return seen.name() == "altrove.md" && seen.description() == origin;
                });
            },
            origin);
    };
    waitForOrigin("collegata");
    focus("");
    waitUntil([&] { return selvane.everything().empty(); }, "no window in front");
    fs::remove(home / "altrove.md"); // in no folder that is watched
    focus("Impostazioni");
    selvane.waitForWindow("Impostazioni");
    waitForOrigin("collegamento interrotto");

    focus("Selvane");
    selvane.waitForWindow("Selvane");
    press({'1'});
    selvane.find(ATSPI_ROLE_ALERT, "Errore");
}

TEST_F(Windows, ADisplayThatIsMissingIsNoCrash) {
    const Outcome expected =
        failure("Nessuno schermo disponibile: senza, Selvane si usa con i suoi comandi (selvane --help)");
    home.environment["DISPLAY"] = ":9999";
    EXPECT_EQ(home.execute({}), expected);
    home.environment.erase("DISPLAY");
    EXPECT_EQ(home.execute({}), expected);
}

TEST_F(Windows, AMissingPackageForWaylandIsNamed) {
    if (fs::exists(QT_PLUGINS "/platforms/libqwayland-generic.so"))
        GTEST_SKIP() << "qt6-wayland is installed here";
    home.environment.erase("DISPLAY");
    home.environment["WAYLAND_DISPLAY"] = "wayland-9";
    EXPECT_TRUE(home.execute({}).err.find("manca il pacchetto qt6-wayland") != std::string::npos);
}

} // namespace
} // namespace selvane::test
