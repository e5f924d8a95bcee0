// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include <csignal>

#include "end-to-end/WindowsTest.h"

namespace selvane::test {
namespace {

namespace fs = std::filesystem;

const std::string kAccountIsOpen = "Account già aperto in Claude";

TEST_F(Windows, AProfileIsChosenByItsKeysAndLaunched) {
    home.output({"create", "Lavoro", "--from", "default"});
    home.environment["XDG_ACTIVATION_TOKEN"] = "used by Selvane's own window";
    auto selvane = start();
    selvane.waitForFocus("Principale");
    press({XK_Right});
    selvane.waitForFocus("Lavoro");
    press({XK_Return});
    EXPECT_EQ(selvane.status(), 0);
    const Json report = opened(lavoroData);
    EXPECT_EQ(report["claudeConfigDir"], profile("lavoro").string());
    EXPECT_EQ(report["environment"]["XDG_ACTIVATION_TOKEN"], Json());
    EXPECT_EQ(report["arguments"],
              Json({"--password-store=basic", "--user-data-dir=" + lavoroData.string()}));
}

TEST_F(Windows, AProfileIsFoundByTypingAndLaunched) {
    home.output({"create", "Cliente Aurora"});
    home.output({"create", "Lavoro"});
    auto selvane = start();
    selvane.waitForFocus("Principale");
    press({'l', 'a', 'v'});
    selvane.waitForFocus("Lavoro");
    selvane.find(ATSPI_ROLE_LABEL, "Cerca: lav, 1 di 3 profili");
    press({XK_Return});
    EXPECT_EQ(selvane.status(), 0);
    EXPECT_EQ(opened(lavoroData)["claudeConfigDir"], profile("lavoro").string());
}

TEST_F(Windows, WhatCannotBeLaunchedIsExplained) {
    fs::remove(program);
    auto selvane = start();
    press({XK_Return});
    const Seen alert = selvane.find(ATSPI_ROLE_ALERT, "Errore");
    EXPECT_TRUE(alert.description().starts_with("Claude Desktop non è installato.")) << alert;
    selvane.waitForFocus("OK");
    press({XK_Return});
    selvane.waitUntilGone(ATSPI_ROLE_ALERT, "Errore");
    installAs("claude-desktop");
    selvane.waitForFocus("Principale").press();
    EXPECT_EQ(selvane.status(), 0);
    EXPECT_EQ(opened(normalData)["claudeConfigDir"], Json());
}

TEST_F(Windows, ACopyThatUsesAnotherAccountIsAnError) {
    home.output({"create", "Lavoro"});
    writeFile(home / "bin/claude-desktop", "#!/bin/sh\nexec '" + program.string() + "'\n");
    fs::permissions(home / "bin/claude-desktop", fs::perms::owner_all);
    writeEntry((home / "bin/claude-desktop").string() + " %U");
    auto selvane = start();
    press({'2'});
    const Seen alert = selvane.find(ATSPI_ROLE_ALERT, "Errore");
    EXPECT_TRUE(alert.description().starts_with("Claude si è aperto, ma non con l'account di «Lavoro»"))
        << alert;
    selvane.waitForFocus("OK");
    press({XK_Return}); // and Selvane stays open
    selvane.waitUntilGone(ATSPI_ROLE_ALERT, "Errore");
    selvane.waitForFocus("Lavoro");
}

TEST_F(Windows, AnOpenAccountIsTakenOverOnceThatIsConfirmed) {
    home.output({"create", "Ospite", "--account", "default"});
    const Json builtIn = launch("default", normalData);
    auto selvane = start();
    for (const auto& answer : {std::vector<xcb_keysym_t>{XK_Escape}, {XK_Tab, XK_Return}}) {
        press({'2'});
        EXPECT_EQ(selvane.find(ATSPI_ROLE_ALERT, kAccountIsOpen).description(),
                  "«Principale» usa lo stesso account Claude ed è aperto: per avviare «Ospite» va chiuso.");
        selvane.waitForFocus("Annulla");
        EXPECT_TRUE(isOpen(builtIn));
        press(answer);
        selvane.waitUntilGone(ATSPI_ROLE_ALERT, kAccountIsOpen);
    }
    EXPECT_EQ(selvane.status(), 0);
    EXPECT_FALSE(isOpen(builtIn));
    EXPECT_EQ(opened(normalData, builtIn)["claudeConfigDir"], profile("ospite").string());
}

TEST_F(Windows, NothingElseIsLaunchedWhileACopyCloses) {
    home.output({"create", "Ospite", "--account", "default"});
    home.environment["STAND_IN_OPTIONS"] = "--stand-in-refuse-quit";
    const Json builtIn = launch("default", normalData);
    auto selvane = start();
    press({'2'});
    selvane.waitForFocus("Annulla");
    press({XK_Tab, XK_Return});
    selvane.find(ATSPI_ROLE_ALERT, "Chiusura di Claude…");
    press({'1'});
    selvane.find(ATSPI_ROLE_ALERT, "Chiusura di Claude…");
    EXPECT_TRUE(isOpen(builtIn));
    kill(builtIn["pid"], SIGKILL);
    EXPECT_EQ(selvane.status(), 0);
    EXPECT_EQ(opened(normalData, builtIn)["claudeConfigDir"], profile("ospite").string());
}

TEST_F(Windows, SignInsAreOfferedOnceAndThenReachTheProfileThatIsChosen) {
    fs::remove(home / ".config/selvane/preferenze.conf");
    for (const char* name : {"Lavoro", "Ospite"})
        home.output({"create", name});
    {
        auto selvane = start();
        press({'2'});
        selvane.find(ATSPI_ROLE_ALERT, "Un accesso per ogni profilo");
        EXPECT_FALSE(fs::exists(home / ".config/mimeapps.list")); // nothing before the answer
        selvane.waitForFocus("Ricevi gli accessi");
        press({XK_Return});
        EXPECT_EQ(selvane.status(), 0);
    }
    opened(lavoroData);
    EXPECT_NE(readFile(home / ".config/mimeapps.list")
                  .find("x-scheme-handler/claude=org.selvane.Selvane.sign-in.desktop"),
              std::string::npos);
    home.environment["STAND_IN_OPTIONS"] = "--stand-in-no-login";
    {
        auto selvane = start();
        press({'3'}); // not offered again
        EXPECT_EQ(selvane.status(), 0);
    }
    const fs::path ospiteData = lavoroData.parent_path() / "ospite";
    opened(ospiteData);

    auto selvane = start({"claude://login/ok?code=s3greto"});
    selvane.find(ATSPI_ROLE_DIALOG, "Di chi è questo accesso?");
    for (const Seen& seen : selvane.everything())
        EXPECT_EQ((seen.name() + seen.description()).find("s3greto"), std::string::npos) << seen;
    selvane.waitForFocus("Ospite"); // which has no login yet
    press({XK_Up});
    selvane.waitForFocus("Lavoro");
    press({XK_Return});
    waitUntil([&] { return fs::exists(lavoroData / "handed-over.json"); }, "the link to arrive");
    EXPECT_EQ(json::parse(readFile(lavoroData / "handed-over.json"), lavoroData).back(),
              "claude://login/ok?code=s3greto");
    EXPECT_FALSE(fs::exists(ospiteData / "handed-over.json"));
}

} // namespace
} // namespace selvane::test
