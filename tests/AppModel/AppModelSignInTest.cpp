// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "AppModel/AppModelFixture.h"

#include "support/RunningProcess.h"

namespace selvane::test {
namespace {

using Texts = std::vector<std::string>;

constexpr auto kLink = "claude://login/ok?code=s3greto#x";

/// "Lavoro" and "Altro" have accounts of their own.
class AppModelSignIn : public AppModelTest {
protected:
    AppModelSignIn() : AppModelTest(Home::Processes::seen) {
        home.make("Lavoro");
        home.make("Altro");
    }
    void open(const std::string& id) {
        const Profile profile = *home.store.profile(id);
        m_copies.push_back(std::make_unique<RunningProcess>(
            Texts{"--user-data-dir=" + home.store.desktopDataDir(profile).string()},
            Environment{{"CLAUDE_CONFIG_DIR", profile.configDir.string()}}));
        home.workspace.apps.push_back(m_copies.back()->app());
    }
    void closeAll() {
        home.workspace.apps.clear();
        m_copies.clear();
    }
    const Texts& lastArguments() const { return home.workspace.openings.back().arguments; }
    std::string dataOf(const std::string& id) const {
        return "--user-data-dir=" + (home.store.desktopStore() / id).string();
    }

private:
    std::vector<std::unique_ptr<RunningProcess>> m_copies;
};

TEST_F(AppModelSignIn, receive_OneCopyOpen_PassesItOnAtOnce) {
    open("altro");
    for (const char* other : {"", "x", "http://login?code=1", "--new-profile"})
        model().receiveSignIn(other);
    EXPECT_TRUE(home.workspace.openings.empty());
    model().receiveSignIn(kLink);
    EXPECT_EQ(model().busyMessage(), "Accesso con «Altro»…");
    waitUntilIdle();
    EXPECT_EQ(lastArguments(), (Texts{dataOf("altro"), kLink}));
    EXPECT_EQ(model().notice(), "Accesso passato a «Altro»");
    EXPECT_EQ(bridge.ends, 1);
}

TEST_F(AppModelSignIn, receive_SeveralOrNone_AsksAndShowsNoSecret) {
    model().setCloseAfterLaunch(false);
    for (const bool isOpen : {true, false}) {
        if (isOpen) {
            open("altro");
            open("lavoro");
        } else {
            closeAll();
        }
        model().receiveSignIn(kLink);
        const QStringList names = model().signInNames();
        EXPECT_EQ(names.size(), isOpen ? 2 : 3);
        EXPECT_EQ(model().signInDetails().at(0),
                  isOpen ? "Aperto, non ha ancora un accesso" : "Si avvia; non ha ancora un accesso");
        EXPECT_GE(model().signInPreset(), 0);
        EXPECT_EQ(model().signInLink(), "claude://login");
        EXPECT_EQ(model().busyMessage() + model().errorMessage(), "");
        model().answerSignIn(static_cast<int>(names.indexOf("Lavoro")));
        waitUntilIdle();
        EXPECT_EQ(lastArguments(), (Texts{dataOf("lavoro"), kLink}));
        EXPECT_EQ(model().signInPreset(), -1);
        EXPECT_EQ(model().errorMessage(), "");
    }
    const auto openings = home.workspace.openings.size();
    model().receiveSignIn(kLink);
    model().answerSignIn(-1);
    EXPECT_EQ(home.workspace.openings.size(), openings) << "given to nobody";
}

TEST_F(AppModelSignIn, offer_OnceBeforeANewLogin) {
    bridge.canReceive = true;
    model().setCloseAfterLaunch(false);
    home.store.create(request("Ospite", {}, "default"));
    model().reload();
    model().launch("ospite");
    waitUntilIdle();
    EXPECT_EQ(home.workspace.openings.size(), 1U) << "it uses another's login";
    model().launch("lavoro");
    EXPECT_EQ(model().signInOffer(), "lavoro");
    EXPECT_FALSE(bridge.receives) << "nothing without that click";
    model().answerSignInOffer(true);
    waitUntilIdle();
    EXPECT_TRUE(bridge.receives && model().receivesSignIns());
    EXPECT_EQ(home.workspace.openings.size(), 2U);
    model().setReceivesSignIns(false);
    model().launch("altro");
    waitUntilIdle();
    EXPECT_EQ(home.workspace.openings.size(), 3U) << "not offered again";
    EXPECT_EQ(model().errorMessage(), "");
}

} // namespace
} // namespace selvane::test
