// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include <csignal>
#include <map>
#include <sstream>

#include "chromium/Chromium.h"
#include "end-to-end/RunningSelvane.h"

namespace selvane::test {
namespace {

namespace fs = std::filesystem;

/// Lavoro and Cliente are profiles with accounts of their own; Ospite shares Lavoro's.
class ChromiumWindows : public Chromium {
protected:
    ChromiumWindows() {
        install(kWrapper, Paths::withBlanks);
        for (const std::string name : {"Lavoro", "Cliente"})
            home.output({"create", name});
        home.output({"create", "Ospite", "--account", "lavoro"});
    }
    RunningSelvane start() const { return {home.environment, home.path()}; }
    static void press(const RunningSelvane& selvane, const std::string& name) {
        selvane.find(ATSPI_ROLE_PUSH_BUTTON, name).press();
    }
};

TEST_F(ChromiumWindows, TheTilesShowAndRaiseOpenCopies) {
    const pid_t cliente = launched("cliente", "cliente");
    const pid_t lavoro = launched("lavoro", "lavoro");
    auto selvane = start();
    const std::map<std::string, std::string> tiles = {{"Principale", "Mai avviato"},
                                                      {"Lavoro", "ultimo, Aperto"},
                                                      {"Cliente", "Aperto"},
                                                      {"Ospite", "Mai avviato"}};
    for (const auto& [name, status] : tiles) {
        const std::string shown = selvane.find(ATSPI_ROLE_PUSH_BUTTON, name).description();
        EXPECT_TRUE(shown.starts_with(status + ", ")) << name << ": " << shown;
    }
    press(selvane, "Cliente");
    EXPECT_EQ(selvane.status(), 0);
    EXPECT_TRUE(soon([&] { return activeWindowOwner() == cliente; })) << activeWindowOwner();
    EXPECT_TRUE(mains().contains(cliente));
    EXPECT_TRUE(mains().contains(lavoro));
}

TEST_F(ChromiumWindows, ACopyThatHangsIsClosedByForce) {
    const pid_t cliente = launched("cliente", "cliente");
    const pid_t lavoro = launched("lavoro", "lavoro");
    ASSERT_EQ(kill(lavoro, SIGSTOP), 0);
    auto selvane = start();
    press(selvane, "Ospite");
    selvane.find(ATSPI_ROLE_ALERT, "Account già aperto in Claude");
    press(selvane, "Chiudi e riapri");
    selvane.find(ATSPI_ROLE_ALERT, "Claude non si è chiuso");
    EXPECT_TRUE(mains().contains(lavoro));
    press(selvane, "Forza chiusura");
    EXPECT_EQ(selvane.status(), 0);
    const pid_t ospite = opened("lavoro", lavoro);
    EXPECT_EQ(openCopies(), std::set({copy(ospite, data("lavoro"), configuration("ospite")),
                                      copy(cliente, data("cliente"), configuration("cliente"))}));
}

TEST_F(ChromiumWindows, ASignInGoesToTheRightOneOfThreeCopies) {
    const pid_t principale = launched("default", "default");
    const pid_t cliente = launched("cliente", "cliente");
    const pid_t lavoro = launched("lavoro", "lavoro");
    const auto windows = [this](pid_t copy) { return windowOwners().count(copy); };
    const auto before = windows(cliente);
    RunningSelvane selvane(home.environment, home.path(), {"claude://login/ok?code=1"});
    selvane.find(ATSPI_ROLE_DIALOG, "Di chi è questo accesso?");
    selvane.find(ATSPI_ROLE_RADIO_BUTTON, "Cliente").press();
    press(selvane, "Passa l'accesso");
    EXPECT_EQ(selvane.status(), 0);
    EXPECT_TRUE(soon([&] { return windows(cliente) > before; }));
    EXPECT_EQ(windows(principale), 1U);
    EXPECT_EQ(windows(lavoro), 1U);
    EXPECT_EQ(mains(), std::set({principale, cliente, lavoro}));
}

TEST_F(ChromiumWindows, AProfileStartsFromAMenu_AndItsWindowsAreKnownByItsEntry) {
    const auto key = [this](const std::string& name) {
        EXPECT_EQ(home.shell("xdotool key " + name), Outcome{});
    };
    {
        auto selvane = start();
        for (const auto& [name, focus] : {std::pair("Right", "Cliente"),
                                          {"Right", "Lavoro"},
                                          {"Menu", "Avvia Claude"},
                                          {"Up", "Aggiungi alle applicazioni"}}) {
            key(name);
            selvane.waitForFocus(focus);
        }
        key("Return");
        ASSERT_TRUE(
            soon([this] { return fs::exists(home / ".local/share/applications/selvane-lavoro.desktop"); }));
        key("ctrl+q");
        EXPECT_EQ(selvane.status(), 0);
    }
    Program menu({"rofi", "-show", "drun", "-filter", "Claude — Lavoro"}, home.environment, home.path());
    ASSERT_TRUE(soon([this] { return home.shell("xdotool search --onlyvisible --class rofi").status == 0; }));
    key("Return");
    const pid_t lavoro = opened("lavoro");
    const pid_t cliente = launched("cliente", "cliente");
    const std::string windows = home.shell("wmctrl -lpx").out;
    // The name before the class may contain blanks.
    const auto hasClass = [&](pid_t pid, const std::string& wanted) {
        std::istringstream list(windows);
        for (std::string line; std::getline(list, line);) {
            std::string window, workspace, owner;
            std::istringstream(line) >> window >> workspace >> owner;
            if (owner == std::to_string(pid))
                return line.find("." + wanted + " ") != line.npos;
        }
        return false;
    };
    EXPECT_TRUE(hasClass(lavoro, "selvane-lavoro")) << windows;
    EXPECT_TRUE(hasClass(cliente, "Chromium")) << windows; // as ever
    EXPECT_EQ(openCopies(), std::set({copy(lavoro, data("lavoro"), configuration("lavoro")),
                                      copy(cliente, data("cliente"), configuration("cliente"))}));
}

} // namespace
} // namespace selvane::test
