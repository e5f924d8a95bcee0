// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include <gtest/gtest.h>

#include <fstream>
#include <unistd.h>

#include "platform/files/DiskUsage.h"
#include "platform/files/Progress.h"
#include "store/Facts.h"
#include "support/Home.h"

namespace selvane {
namespace {

namespace fs = std::filesystem;
using namespace test;
using enum ShareMode;
using Texts = std::vector<std::string>;

/// A profile "Lavoro" some of whose links have become files.
struct Drift : testing::Test {
    Drift() {
        writeTree(home / ".claude", {{"CLAUDE.md", "di tutti"},
                                     {"agents/a.md", "a"},
                                     {"agents/b.md", "b"},
                                     {"agents/c.md", "c"},
                                     {"agents/esclusa.md", "e"},
                                     {"skills/s/SKILL.md", "s"},
                                     {"commands/k.md", "k"}});
        profile = home.make("Lavoro", {{Component::claudeMd, shared}, {Component::commands, separate}});
        profile.meta.excluded["agents"] = {"esclusa.md"};
        home.store.saveMeta(profile);
        for (const char* link : {"CLAUDE.md", "agents/a.md", "agents/b.md", "agents/esclusa.md", "skills/s"})
            fs::remove(profile.configDir / link);
        writeTree(profile.configDir, {{"CLAUDE.md", "mio"},
                                      {"agents/a.md", "a mia"},
                                      {"agents/b.md", "b mia"},
                                      {"agents/esclusa.md", "e mia"},
                                      {"agents/sola.md", "sola"},
                                      {"skills/s/SKILL.md", "s mia"},
                                      {"skills/s/nota", "-> ../altrove"}});
        takeTrash();
    }

    Texts changed() const {
        Texts names;
        for (const ChangedItem& item : home.store.changedItems(profile)) {
            const fs::path place = profile.url(item.component);
            EXPECT_EQ(item.own, isCollection(item.component) ? place / item.name : place);
            names.push_back(item.name);
        }
        return names;
    }
    ChangedItem item(const std::string& name) const {
        for (const ChangedItem& found : home.store.changedItems(profile)) {
            if (found.name == name)
                return found;
        }
        throw std::runtime_error("not changed: " + name);
    }
    std::string linkTo(const std::string& name) const { return "-> " + (home / ".claude" / name).string(); }

    Home home;
    Profile profile;
};

TEST_F(Drift, changedItems_AreOwnOnesInThePlaceOfLinks) {
    EXPECT_EQ(changed(), (Texts{"s", "a.md", "b.md", "CLAUDE.md"}));
    const Tree before = treeOf(profile.configDir / "agents");
    EXPECT_TRUE(home.store.sync(profile).isEmpty());
    EXPECT_EQ(treeOf(profile.configDir / "agents"), before) << "sync leaves them alone";

    profile = home.store.keepOwn(item("b.md"), profile);
    profile = home.store.keepOwn(item("a.md"), profile);
    EXPECT_EQ(home.store.profile("lavoro"), profile);
    EXPECT_EQ(profile.meta.keptOwn, (std::map<std::string, Texts>{{"agents", {"a.md", "b.md"}}}));
    EXPECT_EQ(changed(), (Texts{"s", "CLAUDE.md"}));
    // What is removed or linked is no longer kept, so its next change is told.
    profile =
        home.store.remove({"a.md", profile.configDir / "agents/a.md", {}, false}, profile, Component::agents);
    EXPECT_EQ(profile.meta.keptOwn, (std::map<std::string, Texts>{{"agents", {"b.md"}}}));
    fs::remove(home / ".claude/CLAUDE.md");
    EXPECT_EQ(changed(), (Texts{"s"})) << "there is nothing to follow";
}

TEST_F(Drift, relink_TrashesTheOwnOnes) {
    profile = home.store.relink(item("CLAUDE.md"), profile);
    EXPECT_EQ(takeTrash(), (Tree{{"CLAUDE.md", "mio"}}));
    profile = home.store.relinkAll(Component::agents, profile);
    EXPECT_EQ(takeTrash(), (Tree{{"a.md", "a mia"}, {"b.md", "b mia"}}));
    EXPECT_EQ(treeOf(profile.configDir / "agents"), (Tree{{"a.md", linkTo("agents/a.md")},
                                                          {"b.md", linkTo("agents/b.md")},
                                                          {"c.md", linkTo("agents/c.md")},
                                                          {"esclusa.md", "e mia"},
                                                          {"sola.md", "sola"}}));
    EXPECT_EQ(changed(), (Texts{"s"}));
    EXPECT_EQ(treeOf(home / ".claude/agents").size(), 4);
}

TEST_F(Drift, bringToSource_TrashesTheSourcesAndLinks) {
    profile = home.store.bringToSource(item("s"), profile);
    EXPECT_EQ(takeTrash(), (Tree{{"s", "/"}, {"s/SKILL.md", "s"}}));
    EXPECT_EQ(treeOf(home / ".claude/skills"),
              (Tree{{"s", "/"}, {"s/SKILL.md", "s mia"}, {"s/nota", "-> ../altrove"}}));
    EXPECT_EQ(treeOf(profile.configDir / "skills"), (Tree{{"s", linkTo("skills/s")}}));
    profile = home.store.bringToSource(item("CLAUDE.md"), profile);
    EXPECT_EQ(readFile(home / ".claude/CLAUDE.md"), "mio");
    EXPECT_EQ(fs::read_symlink(profile.configDir / "CLAUDE.md"), home / ".claude/CLAUDE.md");
    EXPECT_EQ(takeTrash(), (Tree{{"CLAUDE.md", "di tutti"}}));
    EXPECT_EQ(changed(), (Texts{"a.md", "b.md"}));
}

TEST_F(Drift, items_ThatAreNoLongerWhatTheyWere_AreLeftAlone) {
    const ChangedItem gone = item("a.md");
    const ChangedItem linked = item("b.md");
    const ChangedItem whole = item("s");
    fs::remove(gone.own);
    home.store.relink(linked, profile);
    profile = home.store.setMode(separate, Component::skills, profile);
    takeTrash();
    const Tree before = treeOf(home.path);
    for (const ChangedItem& each : {gone, linked, whole}) {
        EXPECT_NE(messageOf([&] { home.store.relink(each, profile); }), "") << each.name;
        EXPECT_NE(messageOf([&] { home.store.bringToSource(each, profile); }), "") << each.name;
    }
    EXPECT_EQ(treeOf(home.path), before);
    EXPECT_TRUE(takeTrash().empty());
    // A source's folder that is a link belongs to somebody else.
    fs::rename(home / ".claude/agents", home / "dot");
    fs::create_directory_symlink(home / "dot", home / ".claude/agents");
    writeFile(profile.configDir / "agents/a.md", "a mia");
    EXPECT_NE(messageOf([&] { home.store.bringToSource(item("a.md"), profile); }).find("è un collegamento"),
              std::string::npos);
    EXPECT_EQ(readFile(home / "dot/a.md"), "a");
}

TEST_F(Drift, replaceCopy_OfSomethingElse_LeavesIt) {
    const FileManager files;
    const auto link = [&](const fs::path& temporary) { files.createLink("/x", temporary); };
    EXPECT_FALSE(files.replaceCopy(item("a.md").own, item("a.md").source, link));
    // It changes while its successor is made.
    fs::copy_file(item("a.md").source, item("a.md").own, fs::copy_options::overwrite_existing);
    const fs::path own = item("a.md").own;
    EXPECT_FALSE(files.replaceCopy(own, item("a.md").source, [&](const fs::path& temporary) {
        link(temporary);
        writeFile(own, "più nuova");
    }));
    EXPECT_EQ(readFile(own), "più nuova");
    EXPECT_EQ(treeOf(profile.configDir / "agents").size(), 5) << "no temporaries";
}

TEST_F(Drift, facts_OfAProfile) {
    EXPECT_EQ(agentAddress(home.store, profile), std::nullopt);
    const std::string signedIn = R"({"oauthAccount": {"emailAddress": "ada@esempio.it"}, "x": 1})";
    for (const auto& [text, address] : std::map<std::string, std::optional<std::string>>{
             {signedIn, "ada@esempio.it"},
             {R"({"oauthAccount": {"emailAddress": ""}})", std::nullopt},
             {R"({"oauthAccount": ["a@b"]})", std::nullopt},
             {"{", std::nullopt}}) {
        writeFile(home.store.globalJSON(profile), text);
        EXPECT_EQ(agentAddress(home.store, profile), address) << text;
    }
    writeFile(home.store.defaultGlobalJSON(), signedIn);
    EXPECT_EQ(agentAddress(home.store, home.builtIn()), "ada@esempio.it");

    EXPECT_FALSE(hasDesktopLogin(home.store, profile));
    const fs::path data = home.store.desktopDataDir(profile);
    writeFile(data / "claude-code-sessions/conto/ente/local_1.json", "{}");
    EXPECT_TRUE(hasDesktopLogin(home.store, profile));

    const ProfileSize before = sizeOnDisk(home.store, profile);
    writeFile(data / "grande", std::string(1 << 20, 'x'));
    fs::create_hard_link(data / "grande", data / "lo stesso");
    fs::create_symlink(data / "grande", profile.configDir / "collegamento");
    writeFile(profile.configDir / "bucato", "");
    fs::resize_file(profile.configDir / "bucato", 1 << 30); // a hole takes up nothing
    const ProfileSize after = sizeOnDisk(home.store, profile);
    EXPECT_NEAR(static_cast<double>(after.account - before.account), 1 << 20, 1 << 16);
    EXPECT_LT(after.configuration - before.configuration, 1U << 16);
    // On Linux, /dev/shm is a file system of its own.
    const std::uintmax_t devices = diskUsage({"/dev"}, nullptr);
    const fs::path elsewhere = "/dev/shm/selvane-test-" + std::to_string(::getpid());
    if (std::ofstream(elsewhere) << std::string(4 << 20, 'x')) {
        EXPECT_LT(diskUsage({"/dev"}, nullptr), devices + (1 << 20));
        EXPECT_GE(diskUsage({elsewhere}, nullptr), 4U << 20);
        fs::remove(elsewhere);
    }
    Progress progress;
    progress.cancel();
    EXPECT_THROW(sizeOnDisk(ProfileStore(home.store, progress), profile), fs::filesystem_error);
}

} // namespace
} // namespace selvane
