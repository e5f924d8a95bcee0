// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "end-to-end/WindowsTest.h"
#include "platform/json/Json.h"

namespace selvane::test {
namespace {

namespace fs = std::filesystem;

TEST_F(Manage, AModeIsChosenFromItsList) {
    auto selvane = start();
    selectLavoro(selvane);
    tabTo(selvane, "Skill: Unificato");
    press({XK_space});
    selvane.waitForFocus("Unificato");
    press({XK_Down});
    selvane.waitForFocus("Separato");
    press({XK_Return});
    selvane.waitForFocus("Skill: Separato");
    const fs::path skill = profile("lavoro") / "skills/pdf";
    EXPECT_FALSE(fs::is_symlink(skill));
    EXPECT_EQ(readFile(skill / "SKILL.md"), "testo");
}

TEST_F(Manage, AProfileIsRenamedAndItsCommandCopied) {
    auto selvane = start();
    selectLavoro(selvane);
    tabTo(selvane, "Nome");
    press({XK_Control_L, 'a'});
    type("Studio 2");
    press({XK_Return});
    selvane.find(ATSPI_ROLE_LIST_ITEM, "Studio 2");
    const fs::path record = profile("lavoro") / ".launcher.json";
    EXPECT_EQ(json::parse(readFile(record), record)["name"], "Studio 2");

    tabTo(selvane, "Comando terminale");
    press({XK_space});
    const Seen summary = tabTo(selvane, "Descrizione");
    press({XK_Control_L, 'v'});
    const fs::path helper = home / ".claude-profiles/bin/claude-profile";
    waitUntil([&] { return summary.text() == "\"" + helper.string() + "\" lavoro"; }, "the pasted command");
    EXPECT_TRUE(fs::exists(helper));
}

TEST_F(Manage, ASectionIsFoldedAndStaysSo) {
    {
        auto selvane = start();
        selectLavoro(selvane);
        const Seen header = tabTo(selvane, "Skill");
        EXPECT_TRUE(header.is(ATSPI_STATE_EXPANDABLE) && header.is(ATSPI_STATE_EXPANDED)) << header;
        selvane.find(ATSPI_ROLE_LIST_ITEM, "pdf");
        press({XK_Left});
        selvane.waitUntilGone(ATSPI_ROLE_LIST_ITEM, "pdf");
        EXPECT_TRUE(header.is(ATSPI_STATE_EXPANDABLE) && !header.is(ATSPI_STATE_EXPANDED)) << header;
        header.press();
        selvane.find(ATSPI_ROLE_LIST_ITEM, "pdf");
        press({XK_Left});
        selvane.waitUntilGone(ATSPI_ROLE_LIST_ITEM, "pdf");
        press({XK_Control_L, 'q'});
        EXPECT_EQ(selvane.status(), 0);
    }
    auto selvane = start();
    selectLavoro(selvane);
    EXPECT_FALSE(tabTo(selvane, "Skill").is(ATSPI_STATE_EXPANDED));
}

TEST_F(Manage, AProfileIsFound_ItsListFiltered_AndItsColourChosen) {
    for (char letter = 'a'; letter < 'n'; ++letter)
        writeFile(home / ".claude/skills" / (std::string("skill-") + letter) / "SKILL.md", "testo");
    home.output({"sync", "lavoro"});
    auto selvane = start();
    press({XK_Control_L, ','});
    selvane.waitForWindow("Impostazioni");
    selvane.waitForFocus("Principale");
    type("lav");
    selvane.find(ATSPI_ROLE_LABEL, "Cerca: lav, 1 di 2");
    selvane.waitForFocus("Lavoro");
    press({XK_Escape});
    selvane.waitUntilGone(ATSPI_ROLE_LABEL, "Cerca: lav, 1 di 2");

    const Seen icon = tabTo(selvane, "Cambia icona");
    press({XK_space});
    selvane.waitForFocusAfter(icon);
    press({XK_Tab});
    EXPECT_EQ(selvane.waitForFocus("Nessuna").role(), ATSPI_ROLE_RADIO_BUTTON);
    press({XK_Right});
    selvane.waitForFocus("Muschio");
    press({XK_space});
    const fs::path record = profile("lavoro") / ".launcher.json";
    waitUntil([&] { return readFile(record).find("Muschio") != std::string::npos; }, "the colour");
    press({XK_Escape});
    selvane.waitForFocus("Cambia icona");

    const Seen filter = tabTo(selvane, "Filtra le 14 skill");
    EXPECT_EQ(filter.role(), ATSPI_ROLE_TEXT);
    type("pd");
    selvane.find(ATSPI_ROLE_LABEL, "1 di 14");
    selvane.waitUntilGone(ATSPI_ROLE_LIST_ITEM, "skill-a");
    selvane.find(ATSPI_ROLE_LIST_ITEM, "pdf");
    press({XK_Escape});
    selvane.find(ATSPI_ROLE_LIST_ITEM, "skill-a");
    EXPECT_EQ(filter.text(), "");
}

TEST_F(Manage, AProfileIsDeletedOnceThatIsConfirmed_AndTakenBack) {
    const std::string question = "Spostare «Lavoro» nel Cestino?";
    auto selvane = start();
    selectLavoro(selvane);
    tabTo(selvane, "Elimina");
    press({XK_Return});
    selvane.find(ATSPI_ROLE_ALERT, question);
    selvane.waitForFocus("Annulla");
    press({XK_Return});
    selvane.waitUntilGone(ATSPI_ROLE_ALERT, question);
    selvane.waitForFocus("Elimina");
    EXPECT_TRUE(fs::exists(profile("lavoro")));

    press({XK_Return});
    selvane.waitForFocus("Annulla");
    press({XK_Tab});
    selvane.waitForFocus("Sposta nel Cestino");
    press({XK_Return});
    selvane.waitUntilGone(ATSPI_ROLE_LIST_ITEM, "Lavoro");
    EXPECT_FALSE(fs::exists(profile("lavoro")));
    const fs::path trashed = home / ".local/share/Trash/files/lavoro";
    EXPECT_TRUE(fs::is_symlink(trashed / "skills/pdf"));

    selvane.find(ATSPI_ROLE_ALERT, "Profilo «Lavoro» spostato nel Cestino");
    press({XK_F6});
    EXPECT_EQ(selvane.waitForFocus("Annulla").description(), "Profilo «Lavoro» spostato nel Cestino");
    press({XK_Escape});
    press({XK_Control_L, 'z'});
    selvane.find(ATSPI_ROLE_LIST_ITEM, "Lavoro");
    selvane.find(ATSPI_ROLE_ALERT, "Profilo «Lavoro» rimesso al suo posto");
    EXPECT_TRUE(fs::is_symlink(profile("lavoro") / "skills/pdf"));
    EXPECT_FALSE(fs::exists(trashed));
}

} // namespace
} // namespace selvane::test
