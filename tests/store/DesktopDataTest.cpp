// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include <gtest/gtest.h>

#include "model/LauncherError.h"
#include "support/Home.h"
#include "support/RunningProcess.h"

namespace selvane {
namespace {

namespace fs = std::filesystem;
using namespace test;

constexpr const char* kNote =
    "Cartelle dati di Claude Desktop degli account dei profili (login, preferenze, sessioni del tab Code).\n"
    "Il profilo Principale usa la normale ~/Library/Application Support/Claude.\n"
    "NON cancellare: qui ci sono gli account dei profili.\n";
/// The contents of the normal folder (under "normal") and of the store of the other accounts.
Tree dataOf(const Home& home) {
    Tree tree = treeOf(home.store.desktopStore());
    EXPECT_EQ(tree["LEGGIMI.txt"], kNote);
    tree.erase("LEGGIMI.txt");
    for (const auto& [name, what] : treeOf(home.store.liveDesktopDir()))
        tree["normal/" + name] = what;
    return tree;
}

Profile withAccount(const std::string& id, std::optional<std::string> account) {
    Profile profile{id, {}, "/home/a/" + id};
    profile.meta.account = std::move(account);
    return profile;
}

TEST(DesktopData, desktopDataDir_EachMarker_FollowsTheLiveOwner) {
    Home home;
    const fs::path normal = home.store.liveDesktopDir(), stored = home.store.desktopStore();
    for (const auto& [marker, owner] :
         Tree{{"\n", "default"}, {" lavoro\r\n", "lavoro"}, {"altro", "altro"}}) {
        EXPECT_TRUE(owner != "default" || home.store.desktopLiveOwner() == owner) << "without a marker";
        writeFile(stored / ".live", marker);
        EXPECT_EQ(home.store.desktopLiveOwner(), owner);
        const fs::path builtIn = owner == "default" ? normal : stored / "default";
        const fs::path lavoro = owner == "lavoro" ? normal : stored / "lavoro";
        EXPECT_EQ(home.store.desktopDataDir(home.builtIn()), builtIn) << owner;
        EXPECT_EQ(home.store.desktopDataDir(withAccount("ospite", "default")), builtIn) << owner;
        EXPECT_EQ(home.store.desktopDataDir(withAccount("lavoro", {})), lavoro) << owner;
        EXPECT_EQ(home.store.desktopDataDir(withAccount("ospite", "lavoro")), lavoro) << owner;
    }
}

TEST(DesktopData, desktopLiveOwner_NoText_IsTheBuiltInProfile) {
    Home home;
    for (const char* marker : {"", " \n", "caff\xE8", "\xFF"}) {
        writeFile(home.store.desktopStore() / ".live", marker);
        EXPECT_EQ(home.store.desktopLiveOwner(), "default") << marker;
    }
}

TEST(DesktopData, restore_EachLayout_BringsTheBuiltInAccountBack) {
    const Tree clean = {{"normal/Cookies", "mine"}};
    const struct {
        Tree before; ///< "normal/…" is in the normal folder, the rest in the store
        Tree after;
        bool needed = true;
    } cases[] = {
        {{}, {}, false},
        {clean, clean, false},
        {{{"default/Cookies", "mine"}}, clean},
        {{{".live", "lavoro\n"}, {"normal/Cookies", "lavoro"}, {"default/Cookies", "mine"}},
         {{"normal/Cookies", "mine"}, {"lavoro", "/"}, {"lavoro/Cookies", "lavoro"}}},
        {{{".live", "lavoro"}, {"normal/Cookies", "lavoro"}},
         {{"lavoro", "/"}, {"lavoro/Cookies", "lavoro"}}},
        {{{".live", "lavoro"}, {"lavoro/Cookies", "lavoro"}, {"default/Cookies", "mine"}},
         {{"normal/Cookies", "mine"}, {"lavoro", "/"}, {"lavoro/Cookies", "lavoro"}}},
        {{{".live", "lavoro"}}, {}},
        // Moves to another file system, interrupted when the copy was complete.
        {{{".live", "lavoro"}, {"normal/Cookies", "l"}, {"lavoro/Cookies", "l"}, {"default/Cookies", "mine"}},
         {{"normal/Cookies", "mine"}, {"lavoro", "/"}, {"lavoro/Cookies", "l"}}},
        {{{"normal/Cookies", "mine"}, {"default/Cookies", "mine"}}, clean, false},
        {{{"normal/Cookies", "mine"}, {"default/Cookies", "more"}},
         {{"normal/Cookies", "mine"}, {"default", "/"}, {"default/Cookies", "more"}},
         false},
    };
    for (const auto& [before, after, needed] : cases) {
        Home home;
        for (const auto& [name, what] : before) {
            const bool isNormal = name.starts_with("normal/");
            writeFile(isNormal ? home.store.liveDesktopDir() / name.substr(7)
                               : home.store.desktopStore() / name,
                      what);
        }
        EXPECT_EQ(home.store.needsDesktopRestore(), needed) << testing::PrintToString(before);
        home.store.restoreDesktopData();
        EXPECT_EQ(dataOf(home), after) << testing::PrintToString(before);
        EXPECT_FALSE(home.store.needsDesktopRestore()) << testing::PrintToString(before);
        EXPECT_EQ(home.store.desktopLiveOwner(), "default");
    }
}

TEST(DesktopData, restore_NotPossible_MovesNothing) {
    Home home;
    const fs::path stored = home.store.desktopStore();
    writeTree(stored,
              {{".live", "lavoro"}, {"lavoro/a", "parked"}, {"default/a", "mine"}, {"LEGGIMI.txt", kNote}});
    writeFile(home.store.liveDesktopDir() / "a", "live");
    Tree before = treeOf(home.path);
    EXPECT_EQ(messageOf([&] { home.store.restoreDesktopData(); }),
              "Esiste già " + (stored / "lavoro").string() +
                  ": i dati Desktop sono in uno stato inatteso, controlla a mano");
    EXPECT_EQ(treeOf(home.path), before);

    for (const char* owner : {"..", "../..", "/tmp", "a/b", ".live"}) {
        writeFile(stored / ".live", owner);
        before = treeOf(home.path);
        EXPECT_NE(messageOf([&] { home.store.restoreDesktopData(); }), "") << owner;
        EXPECT_THROW(home.store.desktopDataDir(withAccount("x", owner)), LauncherError) << owner;
        EXPECT_THROW(home.store.seedDesktopData(withAccount("x", std::nullopt), withAccount("y", owner)),
                     LauncherError)
            << owner;
        EXPECT_EQ(treeOf(home.path), before) << owner;
    }
}

/// The built-in account can't go back to the normal folder, which is inside its own.
TEST(DesktopData, restore_LastMoveFails_IsRolledBack) {
    Home home;
    const fs::path stored = home.store.desktopStore();
    ProfileStore store({{"HOME", home.path}, {"CLAUDE_LAUNCHER_DESKTOP_DIR", stored / "default/live"}},
                       home.claude);
    writeTree(
        stored,
        {{".live", "lavoro"}, {"default/live/a", "lavoro"}, {"default/b", "mine"}, {"LEGGIMI.txt", kNote}});
    const Tree before = treeOf(home.path);
    EXPECT_THROW(store.restoreDesktopData(), fs::filesystem_error);
    EXPECT_EQ(treeOf(home.path), before);
}

TEST(DesktopData, create_WithAnAccount_SeedsItsDesktopDataOnce) {
    Home home;
    const fs::path folder = home.store.desktopStore() / "studio", live = home.store.liveDesktopDir();
    home.store.seedDesktopData(withAccount("studio", {}), home.builtIn());
    EXPECT_FALSE(home.store.exists(folder)) << "no data to start from";
    writeTree(live,
              {{"extensions-blocklist.json", "[]"}, {"claude-code/bin", "b"}, {"config.json", "login"}});
    const Profile profile = home.store.create(request("Studio", {}, "default"));
    writeFile(live / "claude_desktop_config.json", "{}");
    home.store.seedDesktopData(profile, home.builtIn());
    EXPECT_EQ(treeOf(folder),
              (Tree{{"extensions-blocklist.json", "[]"}, {"claude-code", "/"}, {"claude-code/bin", "b"}}));
    for (const fs::path& secret : {home.store.desktopStore(), folder})
        EXPECT_EQ(fs::status(secret).permissions(), fs::perms::owner_all) << "it will hold logins";
    EXPECT_EQ(profile.meta.account, "default");
}

TEST(DesktopData, runningCopies_OfTwoProfilesOfOneAccount_AreToldApart) {
    Home home(Home::Processes::seen);
    const Profile lavoro = home.make("Lavoro"), ospite = home.store.create(request("Ospite", {}, "lavoro"));
    writeFile(home.store.root() / "rotto/.launcher.json", R"({"name": "Rotto", "account": "../.."})");
    const fs::path data = home.store.desktopDataDir(lavoro);
    const RunningProcess copy(
        {"--user-data-dir=" + data.parent_path().string() + "/./lavoro/", "--user-data-dir=/x"},
        {{"CLAUDE_CONFIG_DIR", ospite.configDir.string() + "/"}});
    const RunningProcess plain({}, {});
    home.workspace.apps = {plain.app(), copy.app()};
    EXPECT_EQ(home.store.runningProfileIDs(), (std::set<std::string>{"default", "ospite"}));
    EXPECT_EQ(home.store.instance(lavoro)->pid(), copy.pid());
    EXPECT_EQ(home.store.instance(home.builtIn())->pid(), plain.pid());
    EXPECT_FALSE(home.store.instance(withAccount("altro", {})));
    EXPECT_TRUE(home.store.desktopDataInUse(data) &&
                home.store.desktopDataInUse(home.store.liveDesktopDir()));
    fs::create_directories(data);
    home.store.deleteProfile(ospite);
    EXPECT_EQ(messageOf([&] { home.store.deleteProfile(lavoro); }),
              "L'account di \"Lavoro\" è aperto in Claude: chiudilo prima");
}

TEST(DesktopData, runningCopies_WithoutAnEnvironment_AreThoseOfTheOnlyProfileThatTheyCanBe) {
    Home home(Home::Processes::seen);
    const Profile lavoro = home.make("Lavoro");
    const RunningProcess copy({"--user-data-dir=" + home.store.desktopDataDir(lavoro).string()}, {});
    home.workspace.apps = {copy.app()};
    EXPECT_EQ(home.store.runningProfileIDs(), std::set<std::string>{"lavoro"});
    EXPECT_TRUE(home.store.runs(*home.store.instance(lavoro), lavoro));
    const Profile guest = home.store.create(request("Ospite", {}, "lavoro"));
    EXPECT_EQ(home.store.runningProfileIDs(), std::set<std::string>());
    const auto unknown = home.store.instance(guest);
    ASSERT_TRUE(unknown);
    EXPECT_FALSE(unknown->isConfigKnown);
    for (const Profile& profile : home.store.loadAll())
        EXPECT_FALSE(home.store.runs(*unknown, profile)) << profile.id;
}

TEST(DesktopData, deleteProfile_AccountInTheNormalFolder_IsParkedFirst) {
    Home home(Home::Processes::seen);
    const Profile lavoro = home.make("Lavoro");
    writeTree(home.path,
              {{fs::path(home.store.liveDesktopDir() / "Cookies").lexically_relative(home.path), "lavoro"},
               {".claude-profiles/.desktop-data/.live", "lavoro"},
               {".claude-profiles/.desktop-data/default/Cookies", "mine"}});
    {
        const RunningProcess copy({}, {});
        home.workspace.apps = {copy.app()};
        EXPECT_EQ(messageOf([&] { home.store.deleteProfile(lavoro); }),
                  "Per passare alle istanze separate Claude va chiuso una volta: chiudilo e riprova.");
        EXPECT_EQ(readFile(home.store.liveDesktopDir() / "Cookies"), "lavoro");
    }
    home.workspace.apps.clear();
    home.store.deleteProfile(lavoro);
    EXPECT_EQ(dataOf(home), (Tree{{"normal/Cookies", "mine"}}));
    EXPECT_FALSE(home.store.exists(lavoro.configDir));
    EXPECT_EQ(takeTrash().count("lavoro/Cookies"), 1U);
}

} // namespace
} // namespace selvane
