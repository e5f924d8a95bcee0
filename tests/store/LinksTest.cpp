// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include <gtest/gtest.h>

#include <chrono>
#include <thread>

#include "model/LauncherError.h"
#include "support/Home.h"
#include "support/WaitWatch.h"

namespace selvane {
namespace {

namespace fs = std::filesystem;
using namespace test;
using enum ShareMode;
using Texts = std::vector<std::string>;
using Paths = std::vector<fs::path>;

/// A profile called "Lavoro" whose source has some skills, one of them a folder.
struct Links : testing::Test {
    Links() {
        writeTree(home / ".claude/skills", {{"uno.md", "uno"}, {"due/a", "due"}, {"tre.md", "tre"}});
        profile = home.make("Lavoro");
    }

    std::string source(const std::string& name) const { return (home / ".claude/skills" / name).string(); }
    std::string link(const std::string& name) const { return "-> " + source(name); }
    fs::path own(const std::string& name) const { return profile.url(Component::skills) / name; }
    Tree skills() const { return treeOf(profile.url(Component::skills)); }
    void exclude(const std::string& name) {
        profile.meta.excluded["skills"].push_back(name);
        home.store.saveMeta(profile);
    }
    ComponentItem item(const std::string& name) const {
        for (const ComponentItem& found : home.store.items(Component::skills, profile)) {
            if (found.name == name)
                return found;
        }
        throw std::runtime_error("no item " + name);
    }
    void setMode(ShareMode mode, Component component = Component::skills) {
        profile = home.store.setMode(mode, component, profile);
        EXPECT_EQ(home.store.profile("lavoro"), profile) << "the record says what was returned";
    }

    Home home;
    Profile profile;
};

TEST_F(Links, items_OfEachKind_AreClassified) {
    const std::string near = (home / ".claude/skillsX/a").string();
    writeTree(profile.url(Component::skills),
              {{"Altrove", "-> " + near}, {"relativo", "-> uno.md"}, {"zeta", ""}, {".x", ""}});
    Texts found;
    for (const ComponentItem& each : home.store.items(Component::skills, profile)) {
        EXPECT_EQ(each.url, own(each.name));
        const bool isShared = home.store.isLinked(each, home.builtIn(), Component::skills);
        found.push_back(each.name + " " + each.linkTarget.value_or("") + (each.isBroken ? " broken" : "") +
                        (isShared ? " shared" : ""));
    }
    EXPECT_EQ(found, (Texts{"Altrove " + near + " broken", "due " + source("due") + " shared",
                            "relativo uno.md", "tre.md " + source("tre.md") + " shared",
                            "uno.md " + source("uno.md") + " shared", "zeta "}));
    const ComponentItem uno = item("uno.md");
    fs::remove(source("uno.md"));
    const Tree before = skills();
    for (const bool linked : {false, true})
        EXPECT_EQ(messageOf([&] { home.store.addItem(uno, profile, Component::skills, linked); }),
                  "\"uno.md\" esiste già in Lavoro");
    EXPECT_EQ(skills(), before) << "a dangling link is there too";
}

TEST_F(Links, sync_SourceItemRenamed_SwapsTheLink) {
    fs::rename(source("uno.md"), source("nuovo.md"));
    EXPECT_EQ(home.store.sync(profile), (SyncReport{{"Skill: nuovo.md"}, {"Skill: uno.md"}}));
    EXPECT_EQ(skills(),
              (Tree{{"nuovo.md", link("nuovo.md")}, {"due", link("due")}, {"tre.md", link("tre.md")}}));
    EXPECT_TRUE(home.store.sync(profile).isEmpty());
}

TEST_F(Links, sync_OtherEntries_AreLeftAlone) {
    exclude("tre.md");
    fs::remove(own("tre.md"));
    fs::remove(own("due"));
    writeTree(own(""), {{"due", "a file now"}, {"altrove", "-> /nowhere"}});
    setMode(none, Component::commands);
    fs::remove_all(profile.url(Component::agents));
    writeTree(home / ".claude",
              {{"agents/a", ""}, {"commands/c", ""}, {"skills/.x", ""}, {"rules/selvane-profile.md", "x"}});
    EXPECT_EQ(home.store.sync(profile), (SyncReport{{"Agenti: a"}, {}}));
    EXPECT_EQ(skills(),
              (Tree{{"uno.md", link("uno.md")}, {"due", "a file now"}, {"altrove", "-> /nowhere"}}));
    EXPECT_TRUE(treeOf(profile.url(Component::commands)).empty());
    profile.meta.source = "assente";
    home.store.saveMeta(profile);
    writeFile(home / ".claude/agents/b", "");
    EXPECT_TRUE(home.store.sync(profile).isEmpty());
}

TEST_F(Links, changes_WhileTheSourceIsOutOfReach_KeepTheLinks) {
    const Tree before = skills();
    fs::rename(home / ".claude", home / "smontata");
    EXPECT_TRUE(home.store.sync(profile).isEmpty());
    fs::create_directory(home / ".claude"); // as an empty mount point
    EXPECT_TRUE(home.store.sync(profile).isEmpty());
    EXPECT_THROW(setMode(separate), fs::filesystem_error);
    fs::create_directory_symlink("/nowhere", home / ".claude/skills");
    EXPECT_THROW(home.store.sync(profile), fs::filesystem_error);
    EXPECT_EQ(skills(), before);
    EXPECT_EQ(home.store.profile("lavoro"), profile);
}

TEST_F(Links, setMode_Collection_MakesEachTransition) {
    const Tree kept = {{"mio", "mio"}, {"altrove", "-> /nowhere"}};
    writeTree(own(""), kept);
    fs::create_symlink(source("sparito"), own("sparito"));
    const auto with = [&](Tree more) {
        more.insert(kept.begin(), kept.end());
        return more;
    };
    const Tree copies = {{"uno.md", "uno"}, {"due", "/"}, {"due/a", "due"}};
    setMode(separate);
    EXPECT_EQ(skills(), with({{"uno.md", "uno"},
                              {"due", "/"},
                              {"due/a", "due"},
                              {"tre.md", "tre"},
                              {"sparito", link("sparito")}}));
    for (const char* name : {"uno.md", "due", "tre.md"})
        fs::remove_all(own(name));
    exclude("tre.md");
    setMode(shared);
    EXPECT_EQ(skills(), with({{"uno.md", link("uno.md")}, {"due", link("due")}}));
    setMode(none);
    EXPECT_EQ(skills(), kept);
    setMode(separate);
    EXPECT_EQ(skills(), with(copies));
    for (const ShareMode mode : {shared, none}) {
        setMode(mode);
        EXPECT_EQ(skills(), with(copies)) << "own copies stay";
    }
    EXPECT_EQ(takeTrash(), Tree{});
    EXPECT_EQ(treeOf(source("")),
              (Tree{{"uno.md", "uno"}, {"due", "/"}, {"due/a", "due"}, {"tre.md", "tre"}}));
}

TEST_F(Links, change_OfARecordThatAnotherChangedSince_KeepsBoth) {
    const Profile stale = profile;
    setMode(none, Component::agents);
    const auto record = [&] { return home.store.profile("lavoro")->meta; };
    home.store.remove(item("tre.md"), stale, Component::skills);
    EXPECT_EQ(record().excluded, (std::map<std::string, Texts>{{"skills", {"tre.md"}}}));
    home.store.setMode(separate, Component::commands, stale);
    home.store.importItems({"tre.md"}, home.builtIn(), stale, Component::skills, true);
    home.store.changeMeta(stale, [](ProfileMeta& meta) { meta.name = "Studio"; });
    ProfileMeta expected = stale.meta;
    expected.name = "Studio";
    expected.modes["agents"] = none;
    expected.modes["commands"] = separate;
    expected.excluded["skills"] = {};
    EXPECT_EQ(record(), expected);

    setMode(none);
    home.store.sync(stale);
    EXPECT_EQ(skills(), Tree{}) << "links that another has just removed don't come back";
}

TEST_F(Links, setMode_NotPossible_ChangesNothing) {
    setMode(none, Component::mcp);
    writeFile(home / ".claude.json", "{");
    const Tree before = treeOf(home.path);
    EXPECT_EQ(home.store.setMode(shared, Component::skills, profile), profile);
    EXPECT_EQ(messageOf([&] { setMode(extend); }), "Modalità non valida: skills=extend");
    EXPECT_EQ(messageOf([&] { setMode(shared, Component::mcp); }), "Modalità non valida: mcp=shared");
    EXPECT_THROW(setMode(separate, Component::mcp), std::exception) << "its import fails";
    for (const auto& origin : {std::optional<std::string>(), std::optional<std::string>("assente")}) {
        profile.meta.source = origin;
        EXPECT_EQ(messageOf([&] { setMode(shared); }), "Questo profilo non ha una sorgente da cui ereditare");
    }
    EXPECT_EQ(treeOf(home.path), before);
}

TEST_F(Links, setMode_ClaudeMd_KeepsTheOwnRules) {
    const std::string origin = (home / ".claude/CLAUDE.md").string(), linked = "-> " + origin;
    const std::string rest =
        "\" (gestito da Selvane) -->\n@" + origin + "\n\n# Regole specifiche di questo profilo\n\n";
    const std::string header = "<!-- Regole condivise dal profilo \"Principale" + rest;
    const std::string oldHeader = "<!-- Regole condivise dal profilo \"Vecchio nome" + rest;
    writeFile(origin, "fonte\n");
    const struct {
        ShareMode from;
        std::string before; ///< "" if nothing is there
        ShareMode to;
        std::string after;
    } cases[] = {
        {extend, header + "mie\n", separate, "fonte\nmie\n"},
        {extend, oldHeader + "mie\n", separate, "fonte\nmie\n"},
        {extend, "su\n" + header, separate, "su\nfonte\n"},
        {extend, "mie\n", separate, "mie\n"},
        {extend, header + "mie\n", shared, linked},
        {extend, header + "mie\n", none, ""},
        {shared, linked, extend, header},
        {shared, linked, separate, "fonte\n"},
        {shared, "mie\n", extend, header + "mie\n"},
        {shared, linked, none, ""},
        {separate, "mie\n", extend, header + "mie\n"},
        {separate, oldHeader + "mie\n", extend, header + "mie\n"},
        {separate, "mie\n", shared, linked},
        {separate, "mie\n", none, ""},
        {none, "", shared, linked},
        {none, "", extend, header},
        {none, "", separate, "fonte\n"},
        {none, "mie\n", separate, "mie\n"},
    };
    const auto tree = [](const std::string& content) {
        return content.empty() ? Tree{} : Tree{{"CLAUDE.md", content}};
    };
    const fs::path rules = profile.url(Component::claudeMd);
    for (const auto& [from, before, to, after] : cases) {
        fs::remove_all(profile.configDir);
        fs::create_directory(profile.configDir);
        writeTree(profile.configDir, tree(before));
        const bool isFile = fs::is_regular_file(fs::symlink_status(rules));
        if (isFile)
            fs::permissions(rules, fs::perms(0640));
        profile.meta.modes["CLAUDE.md"] = from;
        setMode(to, Component::claudeMd);
        fs::remove(profile.configDir / ".launcher.json");
        if (isFile && fs::is_regular_file(fs::symlink_status(rules))) {
            EXPECT_EQ(fs::status(rules).permissions(), fs::perms(0640)) << rawValue(to);
        }
        EXPECT_EQ(treeOf(profile.configDir), tree(after))
            << rawValue(from) << " to " << rawValue(to) << ": " << before;
        EXPECT_EQ(takeTrash(), tree(before)) << rawValue(from) << " to " << rawValue(to) << ": " << before;
    }
    EXPECT_EQ(readFile(origin), "fonte\n");
}

TEST_F(Links, setMode_AfterAnInterruptedOne_KeepsTheOwnRules) {
    writeFile(home / ".claude/CLAUDE.md", "comuni\n");
    const fs::path rules = profile.url(Component::claudeMd);
    const std::string before = readFile(rules) + "mie\n";
    for (const ShareMode mode : {ShareMode::separate, ShareMode::extend}) {
        // Killed when the old file was in the Trash and the new one not yet in its place.
        writeFile(rules.parent_path() / ".selvane-kept-CLAUDE.md", before);
        fs::remove(rules);
        setMode(mode, Component::claudeMd);
        EXPECT_NE(readFile(rules).find("mie\n"), std::string::npos) << readFile(rules);
    }
    EXPECT_FALSE(fs::exists(rules.parent_path() / ".selvane-kept-CLAUDE.md"));
}

TEST_F(Links, makeOwn_EachKind_LeavesOwnContent) {
    const ComponentItem tre = item("tre.md");
    home.store.makeOwn(item("due"), profile);
    fs::remove(own("tre.md"));
    writeTree(own(""), {{"tre.md", "written meanwhile"}, {"rotto", "-> /nowhere"}});
    home.store.makeOwn(tre, profile);
    EXPECT_THROW(home.store.makeOwn(item("rotto"), profile), fs::filesystem_error);
    EXPECT_EQ(skills(), (Tree{{"due", "/"},
                              {"due/a", "due"},
                              {"tre.md", "written meanwhile"},
                              {"uno.md", link("uno.md")},
                              {"rotto", "-> /nowhere"}}));
    EXPECT_TRUE(home.store.changedItems(*home.store.profile(profile.id)).empty()) << "it was meant so";
}

TEST_F(Links, remove_ThenImport_ExcludesAndTakesBack) {
    writeTree(own(""), {{"mio/a", "mio"}, {"altrove", "-> /nowhere"}});
    for (const char* name : {"uno.md", "due", "mio", "altrove"})
        profile = home.store.remove(item(name), profile, Component::skills);
    EXPECT_EQ(skills(), (Tree{{"tre.md", link("tre.md")}}));
    EXPECT_EQ(takeTrash(), (Tree{{"mio", "/"}, {"mio/a", "mio"}}))
        << "links are not kept, the source's items untouched";
    EXPECT_EQ(home.store.profile("lavoro")->meta.excluded["skills"], (Texts{"due", "uno.md"}));
    EXPECT_TRUE(home.store.sync(profile).isEmpty());

    profile = home.store.importItems({"due"}, home.builtIn(), profile, Component::skills, true);
    profile = home.store.importItems({"uno.md"}, home.builtIn(), profile, Component::skills, false);
    EXPECT_EQ(skills(), (Tree{{"tre.md", link("tre.md")}, {"due", link("due")}, {"uno.md", "uno"}}));
    EXPECT_EQ(home.store.profile("lavoro")->meta.excluded["skills"], Texts{});
}

TEST_F(Links, changes_OfAProfile_LockItOnce) {
    writeTree(home.path,
              {{".claude/settings.json", "{}"}, {".claude/plugins/a", ""}, {".claude.json", "{}"}});
    const Profile builtIn = home.builtIn();
    const ComponentItem linked = item("due");
    const ComponentItem uno = home.store.items(Component::skills, builtIn).back();
    fs::remove(own("uno.md"));
    Paths locked;
    const WaitWatch watch(WaitWatch::For::lock, [&](const fs::path& folder) { locked.push_back(folder); });
    home.store.reimport(Component::settings, profile, builtIn);
    home.store.reimport(Component::plugins, profile, builtIn);
    home.store.reimport(Component::mcp, profile, builtIn);
    home.store.reimport(Component::settings, profile, builtIn);
    home.store.makeOwn(linked, profile);
    home.store.addItem(uno, profile, Component::skills, true);
    EXPECT_EQ(locked, Paths(6, profile.configDir));
    takeTrash();
}

TEST_F(Links, sync_DeletedWhileItWaits_LeavesNothing) {
    std::optional<FolderLock> others(std::in_place, profile.configDir);
    std::string message;
    std::thread waiting([&] { message = messageOf([&] { home.store.sync(profile); }); });
    std::this_thread::sleep_for(std::chrono::milliseconds(50)); // likely enough to have it wait
    fs::rename(profile.configDir, home / "cestino");
    others.reset();
    waiting.join();
    EXPECT_EQ(message, "Il profilo \"Lavoro\" è stato eliminato nel frattempo");
    EXPECT_FALSE(fs::exists(profile.configDir));
}

TEST_F(Links, deleteProfile_OthersDepend_IsRefused) {
    const Profile child = home.store.create(request("Figlio", profile));
    const Profile guest = home.store.create(request("Ospite", {}, "lavoro"));
    writeFile(home.store.desktopStore() / "lavoro/Cookies", "login");
    const Tree before = treeOf(home.path);
    const auto message = [&](const Profile& each) {
        return messageOf([&] { home.store.deleteProfile(each); });
    };
    EXPECT_EQ(message(home.builtIn()), "Il profilo principale non può essere eliminato");
    EXPECT_EQ(message(profile), "Altri profili ereditano da \"Lavoro\": rendili prima separati o eliminali");
    EXPECT_EQ(treeOf(home.path), before);
    const auto damaged = [](const Profile& each, const std::function<void()>& check) {
        const fs::path record = each.configDir / ".launcher.json";
        const std::string valid = readFile(record);
        writeFile(record, "{");
        check();
        writeFile(record, valid);
    };
    damaged(child, [&] { EXPECT_NE(message(guest), "") << "it may depend on the guest"; });
    damaged(profile, [&] { EXPECT_THROW(home.store.sync(child), LauncherError) << "no missing source"; });
    EXPECT_EQ(treeOf(home.path), before);
    home.store.deleteProfile(child);
    EXPECT_EQ(message(profile), "Altri profili usano l'account di \"Lavoro\": cambiali prima");
    home.store.deleteProfile(guest);
    EXPECT_EQ(message(profile), "");
    EXPECT_EQ(home.store.loadAll().size(), 1U);
    const Tree trash = takeTrash();
    EXPECT_EQ(trash.count("figlio/.launcher.json") + trash.count("ospite/.launcher.json"), 2U);
    EXPECT_EQ(readFile(source("uno.md")), "uno") << "links into the source went, not what they point to";
}

} // namespace
} // namespace selvane
