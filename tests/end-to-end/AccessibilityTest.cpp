// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include <algorithm>
#include <set>

#include "end-to-end/WindowsTest.h"

namespace selvane::test {
namespace {

namespace fs = std::filesystem;

bool contains(const std::vector<Seen>& some, const Seen& wanted) {
    return std::any_of(some.begin(), some.end(), [&](const Seen& each) { return each.isSameAs(wanted); });
}

/// Arrows move through a list; the buttons in its rows have their own key.
bool isTabStop(const Seen& seen) {
    return seen.is(ATSPI_STATE_ENABLED) && seen.is(ATSPI_STATE_FOCUSABLE) && seen.canBePressed() &&
           seen.role() != ATSPI_ROLE_LIST_ITEM;
}

/// Everything that can be used is a control, and everything has a role and a name.
void expectNames(const RunningSelvane& selvane) {
    const std::set<AtspiRole> controls = {
        ATSPI_ROLE_PUSH_BUTTON, ATSPI_ROLE_CHECK_BOX, ATSPI_ROLE_RADIO_BUTTON, ATSPI_ROLE_COMBO_BOX,
        ATSPI_ROLE_TEXT,        ATSPI_ROLE_LIST_ITEM, ATSPI_ROLE_LIST,         ATSPI_ROLE_LINK,
    };
    const auto all = selvane.everything();
    const auto names = Seen::namesOf(all);
    const auto roles = Seen::rolesOf(all);
    EXPECT_GT(all.size(), 10U);
    for (std::size_t i = 0; i < all.size(); ++i) {
        if (names[i].empty() && all[i].isGone()) // while the others were asked
            continue;
        EXPECT_NE(names[i], "") << all[i];
        // Qt lets every text take the focus.
        const bool isText = roles[i] == ATSPI_ROLE_LABEL || roles[i] == ATSPI_ROLE_ALERT;
        const bool isControl = all[i].canBePressed() || (all[i].is(ATSPI_STATE_FOCUSABLE) && !isText);
        EXPECT_TRUE(!isControl || controls.contains(roles[i])) << all[i];
    }
}

void expectInside(const Seen& sheet, const std::vector<Seen>& stops) {
    const auto inside = sheet.withDescendants();
    EXPECT_GT(stops.size(), 2U);
    for (const Seen& stop : stops)
        EXPECT_TRUE(contains(inside, stop)) << stop;
}

TEST_F(Windows, ThePickerIsToldAndReachedByTheKeyboard) {
    home.output({"create", "Lavoro", "--from", "default"});
    home.output({"create", "Ospite", "--account", "default"});
    launch("default", normalData);
    auto selvane = start();
    expectNames(selvane);
    const std::vector<std::pair<std::string, std::string>> tiles = {
        {"Principale", "ultimo, Aperto, profilo 1 di 3, La configurazione standard di Claude (~/.claude)"},
        {"Lavoro", "Mai avviato, profilo 2 di 3, Account Claude separato"},
        {"Ospite", "Mai avviato, profilo 3 di 3"},
    };
    for (const auto& [name, description] : tiles) {
        EXPECT_EQ(selvane.waitForFocus(name).description(), description);
        press({XK_Right});
    }
    selvane.waitForFocus("Principale");
    EXPECT_EQ(Seen::namesOf(tabAround(selvane)),
              std::vector<std::string>({"Principale", "Nuovo profilo", "Gestisci profili", "Impostazioni"}));
}

TEST_F(Manage, EverythingIsToldAndReachedByTheKeyboard) {
    auto selvane = start();
    selectLavoro(selvane);
    expectNames(selvane);
    std::vector<Seen> controls;
    const auto stops = tabAround(selvane, [&](const Seen& stop) {
        EXPECT_TRUE(stop.is(ATSPI_STATE_SHOWING) && stop.is(ATSPI_STATE_ENABLED)) << stop;
        if (contains(controls, stop))
            return;
        // Tab has scrolled to it, which has brought others into view.
        for (const Seen& seen : selvane.everything()) {
            if (isTabStop(seen) && !contains(controls, seen))
                controls.push_back(seen);
        }
    });
    expectNames(selvane);
    EXPECT_GT(controls.size(), 40U);
    for (const Seen& control : controls)
        EXPECT_TRUE(contains(stops, control)) << control;
}

TEST_F(Manage, SheetsKeepTheKeyboardInside) {
    writeFile(home / ".claude/skills/xlsx/SKILL.md", "testo");
    home.environment["STAND_IN_OPTIONS"] = "--stand-in-session=Ricerca";
    quit(launch("default", normalData));
    auto selvane = start();
    selectLavoro(selvane);
    const std::vector<std::pair<std::string, std::string>> sheets = {
        {"Esporta un backup", "Cosa salvare"},
        {"Nuovo profilo da questo", "Nuovo profilo"},
        {"Importa…", "Sessioni del tab Code"},
        {"Aggiungi da un altro profilo…", "Aggiungi da un altro profilo"},
    };
    for (const auto& [button, title] : sheets) {
        SCOPED_TRACE(title);
        tabTo(selvane, button);
        press({XK_space});
        const Seen sheet = selvane.find(ATSPI_ROLE_DIALOG, title);
        expectNames(selvane);
        expectInside(sheet, tabAround(selvane));
        const auto inside = sheet.withDescendants();
        for (const Seen& seen : selvane.everything()) {
            if (seen.canBePressed() && !contains(inside, seen))
                seen.press();
        }
        press({XK_Escape});
        selvane.waitUntilGone(ATSPI_ROLE_DIALOG, title);
        selvane.waitForFocus(button);
        for (const Seen& seen : selvane.everything())
            EXPECT_FALSE(seen.role() == ATSPI_ROLE_DIALOG || seen.role() == ATSPI_ROLE_ALERT) << seen;
        EXPECT_TRUE(pids().empty());
    }
}

TEST_F(Manage, ConversationsAreFoundAndContinued) {
    const auto says = [&](const std::string& id, const std::string& words) {
        writeFile(home / ".claude/projects/-srv-sito" / (id + ".jsonl"),
                  R"({"type":"user","cwd":"/srv/sito","timestamp":"2026-01-03T10:00:00Z","message":)"
                  R"({"role":"user","content":")" +
                      words + "\"}}\n");
    };
    says("uno", "cambia i listini");
    says("due", "perché fallisce?");
    auto selvane = start();
    selectLavoro(selvane);
    press({XK_Control_L, 'f'});
    const Seen field = selvane.waitForFocus("Cerca nelle conversazioni");
    const std::string first = "perché fallisce?, terminale, /srv/sito, Principale, 3 gennaio, 125 byte";
    selvane.find(ATSPI_ROLE_LIST_ITEM, first);
    expectNames(selvane);
    const auto stops = Seen::namesOf(tabAround(selvane));
    for (const Seen& seen : selvane.everything()) // by name: the list is made anew now and then
        EXPECT_TRUE(!isTabStop(seen) || std::ranges::count(stops, seen.name()) > 0) << seen;

    tabTo(selvane, first);
    press({XK_Down});
    selvane.waitForFocus("cambia i listini, terminale, /srv/sito, Principale, 3 gennaio, 124 byte");
    press({XK_Control_L, 'f'});
    selvane.waitForFocus(field.name());
    type("perche");
    selvane.find(ATSPI_ROLE_LABEL, "1 di 2 conversazioni");
    press({XK_Down, XK_Return});
    const std::string title = "Continua in…";
    const Seen sheet = selvane.find(ATSPI_ROLE_DIALOG, title);
    selvane.waitForFocus("Lavoro");
    expectNames(selvane);
    expectInside(sheet, tabAround(selvane));
    press({XK_Return});
    waitUntil([&] { return fs::exists(home / ".claude-profiles/lavoro/projects/-srv-sito/due.jsonl"); },
              "the transcript's copy");
    selvane.waitUntilGone(ATSPI_ROLE_DIALOG, title);
    selvane.waitForFocus(field.name());
}

TEST_F(Manage, AnArchiveIsReadAndRestoredInPart) {
    const fs::path skill = home / ".claude/skills/pdf/SKILL.md";
    const fs::path rules = home / ".claude/CLAUDE.md";
    const fs::path added = home / ".claude-profiles/lavoro/agents/dopo.md";
    writeFile(rules, "prima");
    home.output({"backup", (home / "Copia.zip").string()});
    // Tests beside this one open copies of Claude, which are in the way of a restore.
    home.environment["CLAUDE_LAUNCHER_DESKTOP_DIR"] = home / ".config/Claude";
    writeFile(skill, "dopo");
    writeFile(rules, "dopo");
    writeFile(added, "dopo");
    auto selvane = start();
    selectLavoro(selvane);
    tabTo(selvane, "Esporta un backup");
    press({XK_space});
    selvane.find(ATSPI_ROLE_DIALOG, "Cosa salvare");
    tabTo(selvane, "Ripristina…");
    press({XK_space});
    selvane.waitForFocus("File");
    press({XK_Control_L, 'a'});
    type("~/Copia.zip");
    press({XK_Return});
    const Seen sheet = selvane.find(ATSPI_ROLE_DIALOG, "Ripristina da un archivio");
    selvane.waitForFocus("Cambia…");
    selvane.waitUntilGone(ATSPI_ROLE_DIALOG, "Scegli un backup di Selvane");
    expectNames(selvane);
    expectInside(sheet, tabAround(selvane));
    // Only the profile stays as it is.
    tabTo(selvane, "Principale");
    press({XK_Down});
    const std::string description = selvane.waitForFocus("Lavoro").description();
    EXPECT_TRUE(description.starts_with("Profili, ")) << description;
    EXPECT_TRUE(description.ends_with(", già presente: andrà nel Cestino")) << description;
    press({XK_space});
    selvane.find(ATSPI_ROLE_LABEL, "1 di 2 selezionati");
    tabTo(selvane, "Ripristina");
    press({XK_space});
    waitUntil([&] { return readFile(rules) == "prima"; }, "what the archive holds");
    selvane.waitForFocus("Esporta un backup");
    EXPECT_EQ(readFile(skill), "testo");
    EXPECT_EQ(readFile(added), "dopo");
}

} // namespace
} // namespace selvane::test
