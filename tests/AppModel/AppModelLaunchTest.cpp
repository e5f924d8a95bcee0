// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "AppModel/AppModelFixture.h"

#include "support/RunningProcess.h"

namespace selvane::test {
namespace {

/// A home in which a profile shares the built-in account, which a real process has open.
class AppModelLaunch : public AppModelTest {
protected:
    AppModelLaunch() : AppModelTest(Home::Processes::seen) {
        home.store.create(request("Ospite", {}, "default"));
        home.workspace.whenEnded = [this] { m_copy.reset(); };
    }
    void open(const Environment& environment) {
        const std::string folder = home.store.liveDesktopDir();
        m_copy = std::make_unique<RunningProcess>(std::vector<std::string>{"--user-data-dir=" + folder},
                                                  environment);
        home.workspace.apps = {m_copy->app()};
    }

private:
    std::unique_ptr<RunningProcess> m_copy;
};

TEST_F(AppModelLaunch, launch_NothingOpen_StartsAndEndsIfWanted) {
    model().launch("ospite");
    EXPECT_EQ(model().busyMessage(), "Avvio di Claude con «Ospite»…");
    model().launch("ospite");
    EXPECT_EQ(model().errorMessage(), "") << "pressed twice";
    waitUntilIdle();
    ASSERT_EQ(home.workspace.openings.size(), 1U);
    EXPECT_EQ(home.workspace.openings[0].environment.at("XDG_ACTIVATION_TOKEN"), "fresh");
    EXPECT_EQ(bridge.ends, 1);
    model().setCloseAfterLaunch(false);
    home.workspace.installed.reset();
    model().launch("ospite");
    waitUntilIdle();
    EXPECT_TRUE(
        model().errorMessage().startsWith("Claude Desktop non è installato. Scarica il suo pacchetto"));
    EXPECT_EQ(bridge.ends, 1);
}

TEST_F(AppModelLaunch, slowActions_OneAtATime_TheSecondIsRefused) {
    writeFile(home / ".claude/CLAUDE.md", "x");
    const QString refusal = "Selvane sta già lavorando (%1): riprova quando ha finito.";
    bridge.answersLater = true;
    model().exportBackup(BackupScope::profiles());
    model().launch("ospite");
    const QString launching = model().busyMessage();
    bridge.answer(home / "b.zip");
    EXPECT_EQ(model().errorMessage(), refusal.arg(launching));
    EXPECT_EQ(model().busyMessage(), launching);
    waitUntilIdle();
    EXPECT_EQ(home.workspace.openings.size(), 1U);
    EXPECT_EQ(bridge.ends, 0) << "the refusal is still to be read";

    model().clearError();
    model().exportBackup(BackupScope::profiles());
    model().launch("ospite");
    waitUntilIdle();
    EXPECT_EQ(bridge.ends, 0) << "a backup is still wanted";
    bridge.answer(home / "b.zip");
    model().launch("default");
    EXPECT_EQ(model().errorMessage(), refusal.arg("Backup in corso…"));
    waitUntilIdle();
    EXPECT_TRUE(model().notice().startsWith("Backup creato (")) << model().errorMessage().toStdString();
    EXPECT_EQ(home.workspace.openings.size(), 2U);
}

TEST_F(AppModelLaunch, launch_AlreadyOpen_OnlyComesForward) {
    open({{"PATH", "/bin"}});
    model().setCloseAfterLaunch(false);
    model().launch("default");
    EXPECT_EQ(home.workspace.activated.size(), 1U);
    EXPECT_EQ(bridge.ends, 0);
    model().setCloseAfterLaunch(true);
    model().launch("default");
    EXPECT_EQ(bridge.ends, 1);
    home.workspace.canActivate = false;
    model().launch("default");
    EXPECT_EQ(bridge.ends, 1) << "nothing would show where it is";
    EXPECT_TRUE(model().notice().startsWith("«Principale» è già aperto"));
    EXPECT_TRUE(home.workspace.openings.empty() && home.workspace.terminated.empty());
}

TEST_F(AppModelLaunch, launch_AccountOpenElsewhere_AsksThenReplacesTheCopy) {
    open({{"PATH", "/bin"}});
    EXPECT_EQ(model().running(), std::set<std::string>{"default"});
    model().launch("ospite");
    EXPECT_EQ(model().pendingLaunch(), "ospite");
    EXPECT_EQ(model().property("closeMessage").toString(),
              "«Principale» usa lo stesso account Claude ed è aperto: per avviare «Ospite» va chiuso.");
    EXPECT_EQ(model().closeWarning(), "") << "no session runs below the copy";
    EXPECT_EQ(model().openToClose(), "default");
    model().cancelLaunch();
    EXPECT_EQ(model().pendingLaunch(), "");
    expectUpToDate();
    EXPECT_TRUE(home.workspace.terminated.empty()) << "nothing happens before the answer";

    model().launch("ospite");
    model().confirmLaunch();
    EXPECT_EQ(model().pendingLaunch(), "");
    EXPECT_EQ(model().busyMessage(), "Chiusura di Claude…");
    waitUntilIdle();
    EXPECT_EQ(home.workspace.terminated.size(), 1U);
    EXPECT_EQ(home.workspace.openings.size(), 1U) << model().errorMessage().toStdString();
}

TEST_F(AppModelLaunch, launch_CopyThatStays_IsOfferedToBeForced) {
    open({{"CLAUDE_CONFIG_DIR", "/altrove"}});
    home.workspace.terminationsIgnored = 1;
    model().launch("ospite");
    EXPECT_TRUE(
        model().property("closeMessage").toString().startsWith("Un altro profilo usa lo stesso account"));
    EXPECT_EQ(model().openToClose(), "");
    model().confirmLaunch();
    waitUntilIdle();
    EXPECT_EQ(model().offerForceQuit(), "ospite");
    EXPECT_EQ(model().errorMessage(), "");
    EXPECT_TRUE(home.workspace.openings.empty());
    model().cancelForceQuit();
    EXPECT_EQ(model().offerForceQuit(), "");
    expectUpToDate();
    home.workspace.terminationsIgnored = 1;
    model().launch("ospite");
    model().confirmLaunch();
    waitUntilIdle();
    model().forceLaunch();
    EXPECT_EQ(model().offerForceQuit(), "");
    expectUpToDate();
    waitUntilIdle();
    EXPECT_EQ(home.workspace.forced.size(), 1U);
    EXPECT_EQ(home.workspace.openings.size(), 1U);
}

TEST_F(AppModelLaunch, launch_AccountOpenedAgainMeanwhile_LeavesThatCopyAlone) {
    open({{"PATH", "/bin"}});
    home.workspace.whenEnded = [this] { open({{"CLAUDE_CONFIG_DIR", "/altrove"}}); };
    model().launch("ospite");
    model().confirmLaunch();
    waitUntilIdle();
    EXPECT_TRUE(model().errorMessage().contains("è già aperto")) << model().errorMessage().toStdString();
    EXPECT_EQ(model().offerForceQuit(), "");
    EXPECT_TRUE(home.workspace.openings.empty());
}

TEST_F(AppModelLaunch, launch_AccountsToRestore_ClosesEveryCopyFirst) {
    writeTree(home.path,
              {{".claude-profiles/.desktop-data/.live", "ospite"}, {".config/Claude/Cookies", "theirs"}});
    open({{"PATH", "/bin"}});
    model().launch("default");
    EXPECT_EQ(model().property("closeMessage").toString(),
              "Per passare alle istanze separate Claude va chiuso una volta e riaperto con «Principale». Le "
              "sessioni "
              "in corso verranno interrotte.");
    model().confirmLaunch();
    waitUntilIdle();
    EXPECT_EQ(readFile(home.store.desktopStore() / "ospite/Cookies"), "theirs")
        << model().errorMessage().toStdString();
    EXPECT_EQ(home.workspace.openings.size(), 1U);
}

TEST_F(AppModelLaunch, running_FollowsTheDesktop) {
    model();
    open({{"PATH", "/bin"}});
    EXPECT_TRUE(model().running().empty());
    emit bridge.claudeCopiesChanged();
    EXPECT_EQ(model().running(), std::set<std::string>{"default"});
}

} // namespace
} // namespace selvane::test
