// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "end-to-end/WindowsTest.h"

namespace selvane::test {
namespace {

namespace fs = std::filesystem;

class Entries : public Windows {
protected:
    Entries() { home.output({"create", "Lavoro"}); }

    /// Chooses the last command of Lavoro's menu.
    static void chooseLast(const RunningSelvane& selvane, const std::string& command) {
        selvane.waitForFocus("Lavoro");
        press({XK_Menu});
        selvane.waitForFocus("Avvia Claude");
        press({XK_Up});
        selvane.waitForFocus(command);
        press({XK_Return});
    }
    /// What a start from a menu has said where nobody sees it.
    std::string takeErrors() const {
        std::string errors = readFile(home / "selvane.err");
        fs::remove(home / "selvane.err");
        return errors;
    }

    const fs::path data = home / ".local/share";
    const fs::path entry = data / "applications/selvane-lavoro.desktop";
};

TEST_F(Entries, AProfileIsPutAmongTheApplications_AndStartsFromThere) {
    auto selvane = start();
    press({XK_Right});
    chooseLast(selvane, "Aggiungi alle applicazioni");
    waitUntil([this] { return fs::exists(entry); }, "the entry");
    EXPECT_EQ(home.shell("/usr/bin/desktop-file-validate '" + entry.string() + "'"), Outcome{});
    for (const std::string size : {"16x16", "48x48@2", "256x256@2"})
        EXPECT_TRUE(fs::exists(data / "icons/hicolor" / size / "apps/selvane-lavoro.png")) << size;

    EXPECT_EQ(home.shell("/usr/bin/gio launch '" + entry.string() + "'"), Outcome{});
    const Json report = opened(lavoroData);
    // A start whose home goes away under it would open a window over the next test.
    waitUntil([this] { return readFile(home / ".claude-profiles/.active") == "lavoro"; }, "its end");
    EXPECT_EQ(report["claudeConfigDir"], profile("lavoro").string());
    EXPECT_EQ(report["arguments"], Json({"--password-store=basic", "--class=selvane-lavoro",
                                         "--user-data-dir=" + lavoroData.string()}));
    EXPECT_TRUE(home.output({"desktop-status"}).find(profile("lavoro")) != std::string::npos);

    chooseLast(selvane, "Togli dalle applicazioni");
    waitUntil([this] { return !fs::exists(entry); }, "no entry");
    EXPECT_FALSE(fs::exists(data / "icons/hicolor/48x48/apps/selvane-lavoro.png"));
}

TEST_F(Entries, AStartThatFails_IsExplainedInAWindow) {
    auto unknown = start({"launch", "assente", "--windows"});
    EXPECT_EQ(unknown.find(ATSPI_ROLE_ALERT, "Errore").description(), "Profilo sconosciuto: assente");
    unknown.waitForFocus("OK");
    press({XK_Return});
    unknown.waitUntilGone(ATSPI_ROLE_ALERT, "Errore");
    unknown.waitForFocus("Principale");
    fs::remove(program);
    // Handed over to the windows that are open.
    EXPECT_EQ(home.execute({"launch", "lavoro", "--windows"}),
              failure("Claude.app non trovata. Installala in /Applications."));
    EXPECT_TRUE(unknown.find(ATSPI_ROLE_ALERT, "Errore")
                    .description()
                    .starts_with("Claude Desktop non è installato."));
    unknown.waitForFocus("OK");
    press({XK_Return});
    unknown.waitForFocus("Principale");
    press({XK_Control_L, 'q'});
    EXPECT_EQ(unknown.status(), 1);
    EXPECT_EQ(takeErrors(), "Errore: Profilo sconosciuto: assente\n");
}

TEST_F(Entries, AStartThatWouldCloseAnotherProfile_AsksFirst) {
    home.output({"create", "Ospite", "--account", "default"});
    const Json builtIn = launch("default", normalData);
    auto selvane = start({"launch", "ospite", "--windows"});
    selvane.find(ATSPI_ROLE_ALERT, "Account già aperto in Claude");
    EXPECT_TRUE(isOpen(builtIn));
    selvane.find(ATSPI_ROLE_PUSH_BUTTON, "Chiudi e riapri").press();
    EXPECT_EQ(selvane.status(), 0);
    EXPECT_EQ(opened(normalData, builtIn)["claudeConfigDir"], profile("ospite").string());
}

} // namespace
} // namespace selvane::test
