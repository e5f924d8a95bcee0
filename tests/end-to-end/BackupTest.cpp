// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "end-to-end/WindowsTest.h"

namespace selvane::test {
namespace {

namespace fs = std::filesystem;

/// This desktop has no portal, no file manager and no Trash of another system: only a program that opens
/// folders.
TEST_F(Manage, ABackupIsSavedWithoutTheDesktopsHelp) {
    writeFile(home / "bin/xdg-open",
              "#!/bin/sh\nprintf '%s\\n' \"$1\" >>'" + (home / "opened").string() + "'\n");
    fs::permissions(home / "bin/xdg-open", fs::perms::owner_all);
    const fs::path archive = home / "Copia.zip";
    auto selvane = start();
    selectLavoro(selvane);
    const auto ask = [&] {
        tabTo(selvane, "Esporta un backup");
        press({XK_space});
        selvane.find(ATSPI_ROLE_DIALOG, "Cosa salvare");
        press({XK_Return});
        selvane.waitForFocus("File");
        press({XK_Control_L, 'a'});
        type("~/Copia");
        press({XK_Return});
    };
    ask();
    waitUntil([&] { return fs::exists(archive); }, "the archive");
    const std::string folder = "file://" + home.path().string() + "\n";
    waitUntil([&] { return readFile(home / "opened") == folder; }, "the archive's folder");
    const auto first = readFile(archive);

    selvane.waitForFocus("Esporta un backup");
    ask();
    const std::string question = "Sostituire «Copia.zip»?";
    selvane.find(ATSPI_ROLE_ALERT, question);
    selvane.waitForFocus("Annulla");
    press({XK_Return});
    const Seen field = selvane.waitForFocus("File");
    EXPECT_EQ(field.text(), archive.string());
    EXPECT_EQ(readFile(archive), first);
    press({XK_Return});
    selvane.waitForFocus("Annulla");
    press({XK_Tab, XK_Return});
    waitUntil([&] { return readFile(home / "opened") == folder + folder; }, "the second archive's folder");
    EXPECT_EQ(readFile(home / ".local/share/Trash/files/Copia.zip"), first);
}

} // namespace
} // namespace selvane::test
