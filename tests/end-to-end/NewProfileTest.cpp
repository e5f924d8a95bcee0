// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "end-to-end/WindowsTest.h"

namespace selvane::test {
namespace {

namespace fs = std::filesystem;

TEST_F(Windows, ANewProfileStartsFromTheFocusedOne) {
    writeFile(home / ".claude/skills/pdf/SKILL.md", "testo");
    auto selvane = start();
    tabTo(selvane, "Nuovo profilo");
    press({XK_space});
    selvane.waitForFocus("Nome");
    press({XK_Escape});
    selvane.waitForFocus("Nuovo profilo");
    selvane.waitUntilGone(ATSPI_ROLE_DIALOG, "Nuovo profilo");

    press({XK_Control_L, 'n'});
    selvane.waitForFocus("Nome");
    EXPECT_EQ(selvane.find(ATSPI_ROLE_COMBO_BOX, "Parti da: Principale").role(), ATSPI_ROLE_COMBO_BOX);
    type("Cliente X");
    press({XK_Return});
    selvane.waitUntilGone(ATSPI_ROLE_DIALOG, "Nuovo profilo");
    EXPECT_TRUE(selvane.find(ATSPI_ROLE_PUSH_BUTTON, "Cliente X")
                    .description()
                    .starts_with("Mai avviato, profilo 2 di 2"));
    EXPECT_EQ(fs::read_symlink(profile("cliente-x") / "skills/pdf"), home / ".claude/skills/pdf");
}

} // namespace
} // namespace selvane::test
