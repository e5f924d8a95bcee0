// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include <gtest/gtest.h>

#include <algorithm>

#include "platform/json/Json.h"
#include "store/InstructionExcludes.h"
#include "support/Home.h"

namespace selvane {
namespace {

namespace fs = std::filesystem;
using namespace test;
using enum ShareMode;
using Texts = std::vector<std::string>;

const std::map<Component, ShareMode> kAlone = {{Component::claudeMd, none}, {Component::rules, none}};

/// A built-in profile with instructions, and an isolated profile "Cliente".
struct Isolation : testing::Test {
    Isolation() {
        writeTree(home / ".claude", {{"CLAUDE.md", "di tutti"},
                                     {"settings.json", "{\"model\": \"x\"}"},
                                     {"rules/a.md", "a"},
                                     {"rules/.nascosta.md", "n"},
                                     {"rules/note.txt", "no rule"},
                                     {"rules/sub/s.md", "s"}});
    }

    Profile make(const std::map<Component, ShareMode>& modes, const std::optional<Profile>& from = {}) {
        NewProfile wanted = request("Cliente", from ? from : home.builtIn());
        wanted.modes = modes;
        wanted.isolated = true;
        return home.store.create(wanted);
    }
    fs::path settings(const Profile& profile) const { return profile.url(Component::settings); }
    /// The entries in alphabetical order, with "~" for the built-in profile's folder.
    Texts excludes(const Profile& profile) const {
        const std::string builtIn = (home / ".claude").string();
        const Json all = json::parse(readFile(settings(profile)), settings(profile));
        const Json* list = json::find(all, "claudeMdExcludes");
        Texts result;
        for (const Json& entry : list != nullptr ? *list : Json::array()) {
            const auto text = entry.get<std::string>();
            result.push_back(text.starts_with(builtIn) ? "~" + text.substr(builtIn.size()) : text);
        }
        std::sort(result.begin(), result.end());
        return result;
    }

    Home home;
};

TEST_F(Isolation, create_Isolated_NamesExactlyWhatIsNotTaken) {
    const Texts everything = {"~/CLAUDE.md", "~/rules/**"};
    EXPECT_EQ(excludes(make({})), (Texts{"~/rules/.nascosta.md"})) << "hidden files are no items, but rules";
    EXPECT_EQ(excludes(make(kAlone)), everything);
    EXPECT_EQ(excludes(make({{Component::claudeMd, separate}, {Component::rules, separate}})), everything);
    // Through another profile: its links and includes count as they stand on disk.
    const Profile between = home.make("Tramite", {{Component::rules, none}});
    EXPECT_EQ(excludes(make({}, between)), (Texts{"~/rules/**"}));
    const Profile copied = home.make("Copia", {{Component::claudeMd, separate}});
    EXPECT_EQ(excludes(make({}, copied)), (Texts{"~/CLAUDE.md", "~/rules/.nascosta.md"}));
    // What isn't there yet is taken or kept out all the same.
    fs::remove(home / ".claude/CLAUDE.md");
    fs::remove_all(home / ".claude/rules");
    EXPECT_EQ(excludes(make({{Component::claudeMd, shared}})), (Texts{"~/rules/**"}));
    EXPECT_EQ(excludes(make({{Component::claudeMd, none}})), everything);
}

TEST_F(Isolation, links_InEveryPlace_AreFollowedToTheFiles) {
    writeTree(home.path, {{"dot/main.md", "di tutti @altro.md"}, {"dot/altro.md", ""}, {"dot/r/b.md", ""}});
    fs::remove(home / ".claude/CLAUDE.md");
    writeTree(home / ".claude", {{"CLAUDE.md", "-> " + (home / "dot/main.md").string()},
                                 {"rules/altro.md", "-> " + (home / "dot/altro.md").string()},
                                 {"rules/team", "-> " + (home / "dot/r").string()},
                                 {"rules/giro", "-> " + (home / ".claude/rules").string()},
                                 {"rules/x{1}/x*[1].md", ""}});
    // Everything of a linked folder is taken, now and later; what an included file includes is taken too.
    EXPECT_EQ(excludes(make({{Component::claudeMd, extend}, {Component::rules, none}})),
              (Texts{"~/rules/.nascosta.md", "~/rules/a.md", "~/rules/sub/**", "~/rules/team/**",
                     "~/rules/x?1?/**"}));
    Profile profile = make(kAlone);
    EXPECT_EQ(excludes(profile), (Texts{"~/CLAUDE.md", "~/rules/**"}));
    writeFile(profile.url(Component::claudeMd),
              "vedi\n@" + (home / "dot/main.md").string() + " e @~/.claude/rules/a.md#x");
    fs::create_directory_symlink(home / "dot/r", profile.url(Component::rules) / "mio");
    writeFile(profile.url(Component::rules) / "sotto/r.md", "@~/.claude/rules/x{1}/x*[1].md");
    home.store.sync(profile);
    EXPECT_EQ(excludes(profile), (Texts{"~/rules/.nascosta.md", "~/rules/sub/**"}));
    // A rule with such a name is Selvane's entry by its exact path, and goes as it came.
    writeFile(home / ".claude/rules/x{1}/y.md", "");
    home.store.sync(profile);
    fs::remove(profile.url(Component::rules) / "sotto/r.md");
    writeFile(profile.url(Component::claudeMd), "@~/.claude/rules/x{1}/y.md");
    home.store.sync(profile);
    EXPECT_EQ(excludes(profile).back(), "~/rules/x{1}/x*[1].md");
    writeFile(profile.url(Component::claudeMd), "@~/.claude/rules/x{1}/y.md\n@~/.claude/rules/x{1}/x*[1].md");
    home.store.sync(profile);
    EXPECT_EQ(excludes(profile), (Texts{"~/CLAUDE.md", "~/rules/.nascosta.md", "~/rules/a.md",
                                        "~/rules/altro.md", "~/rules/sub/**"}));
}

TEST_F(Isolation, links_AmongSpecialCharacters_AreAlsoResolvedInTheEntries) {
    writeTree(home / "d(1)\\x/.claude",
              {{"CLAUDE.md", ""}, {"rules/a.md", ""}, {"rules/n*.md", ""}, {"rules/s\\[t]/b.md", ""}});
    const auto below = [&](const fs::path& builtIn) {
        Instructions taken(home.path);
        taken.addFile(home / "d(1)\\x/.claude/rules/a.md");
        Texts result = InstructionExcludes::of(builtIn, taken).entries;
        for (std::string& entry : result) {
            EXPECT_TRUE(isInstructionExclude(entry, builtIn)) << entry;
            entry.erase(0, home.path.native().size());
        }
        return result;
    };
    const Texts real = {"/d(1)\\x/.claude/CLAUDE.md", "/d(1)\\x/.claude/rules/n*.md",
                        "/d?1?\\x/.claude/rules/s\\?t?/**"};
    EXPECT_EQ(below(home / "d(1)\\x/.claude"), real);
    fs::create_directory_symlink(home / "d(1)\\x", home / "casa");
    Texts both = {"/casa/.claude/CLAUDE.md", "/casa/.claude/rules/n*.md", "/casa/.claude/rules/s\\?t?/**"};
    both.insert(both.end(), real.begin(), real.end());
    EXPECT_EQ(below(home / "casa/.claude"), both);
    fs::remove_all(home / "d(1)\\x/.claude/rules");
    fs::rename(home / "d(1)\\x", home / "d");
    fs::create_directory_symlink(home / "d", home / "d(1)\\x");
    EXPECT_EQ(below(home / "casa/.claude"), (Texts{"/casa/.claude/CLAUDE.md", "/casa/.claude/rules/**"}));
}

TEST_F(Isolation, operations_ThatChangeInstructions_KeepTheEntriesRight) {
    Profile profile = make(kAlone);
    profile = home.store.setMode(extend, Component::claudeMd, profile);
    EXPECT_EQ(excludes(profile), (Texts{"~/rules/**"}));
    profile = home.store.setMode(shared, Component::rules, profile);
    EXPECT_EQ(excludes(profile), (Texts{"~/rules/.nascosta.md"}));
    writeFile(home / ".claude/rules/sub/nuova.md", ""); // in a folder that is linked
    writeFile(home / ".claude/rules/b.md", "");
    home.store.sync(profile);
    EXPECT_EQ(excludes(profile), (Texts{"~/rules/.nascosta.md"}));
    const auto item = [&](const std::string& name) {
        const fs::path url = profile.url(Component::rules) / name;
        return ComponentItem{name, url, fs::read_symlink(url).string(), false};
    };
    profile = home.store.remove(item("a.md"), profile, Component::rules);
    home.store.makeOwn(item("b.md"), profile);
    EXPECT_EQ(excludes(profile), (Texts{"~/rules/.nascosta.md", "~/rules/a.md", "~/rules/b.md"}));
    profile = home.store.importItems({"a.md"}, home.builtIn(), profile, Component::rules, true);
    home.store.reimport(Component::settings, profile, home.builtIn()); // which replaces the file
    EXPECT_EQ(excludes(profile), (Texts{"~/rules/.nascosta.md", "~/rules/b.md"}));
    profile = home.store.setMode(none, Component::rules, profile);
    profile = home.store.setMode(none, Component::claudeMd, profile);
    EXPECT_EQ(excludes(profile), (Texts{"~/CLAUDE.md", "~/rules/**"})) << "its own rules stay";
}

TEST_F(Isolation, setIsolated_OnAndOff_LeavesEverythingElseOfTheSettings) {
    Profile profile = home.make("Lavoro", kAlone);
    const std::string own = "/progetti/**/CLAUDE.md";
    const std::string glob = (home / ".claude/rules/*.md").string();
    const std::string before =
        json::serialized(json::parse(R"({"z": 1.50, "claudeMdExcludes": [")" + own + R"(", ")" + glob +
                                         R"("], "hooks": {"b": 1, "a": 2}})",
                                     {}));
    writeFile(settings(profile), before);
    fs::permissions(settings(profile), kOwnerOnly | fs::perms::group_read);
    profile = home.store.setIsolated(true, profile);
    EXPECT_EQ(excludes(profile), (Texts{own, "~/CLAUDE.md", "~/rules/**", "~/rules/*.md"}));
    EXPECT_EQ(home.store.profile("lavoro"), profile);
    EXPECT_NE(readFile(profile.configDir / ".launcher.json").find("\"isolated\": true,\n"),
              std::string::npos);
    EXPECT_NE(readFile(profile.configDir / "rules/selvane-profile.md").find("isolated"), std::string::npos);
    // A copy of these settings is another profile's, which isn't isolated.
    EXPECT_EQ(excludes(home.store.create(request("Copia", profile))), (Texts{own, "~/rules/*.md"}));
    profile = home.store.setIsolated(false, profile);
    EXPECT_EQ(readFile(settings(profile)), before);
    EXPECT_EQ(readFile(profile.configDir / ".launcher.json").find("isolated"), std::string::npos);
    home.store.sync(profile);
    EXPECT_EQ(readFile(settings(profile)), before);

    fs::remove(settings(profile));
    profile = home.store.setIsolated(true, profile);
    EXPECT_EQ(fs::status(settings(profile)).permissions(), kOwnerOnly);
    home.store.setIsolated(false, profile);
    EXPECT_EQ(readFile(settings(profile)), "{}\n");
}

TEST_F(Isolation, setIsolated_NotPossible_ChangesNothing) {
    const Profile profile = home.make("Lavoro", kAlone);
    const std::string record = readFile(profile.configDir / ".launcher.json");
    const fs::path elsewhere = home / "dotfiles.json";
    for (const std::string wrong : {"{", "[]", "{\"claudeMdExcludes\": \"x\"}"}) {
        writeFile(settings(profile), wrong);
        EXPECT_NE(messageOf([&] { home.store.setIsolated(true, profile); }), "") << wrong;
        EXPECT_EQ(readFile(settings(profile)), wrong);
    }
    writeFile(elsewhere, "{}");
    fs::remove(settings(profile));
    fs::create_symlink(elsewhere, settings(profile));
    EXPECT_NE(messageOf([&] { home.store.setIsolated(true, profile); }).find("è un collegamento"),
              std::string::npos);
    EXPECT_EQ(readFile(profile.configDir / ".launcher.json"), record);
    EXPECT_EQ(messageOf([&] { home.store.setIsolated(true, home.builtIn()); }),
              "Il profilo principale non può essere isolato");
    EXPECT_EQ(readFile(elsewhere), "{}");

    // A link is good enough as long as the file that it leads to has the entries.
    fs::remove(settings(profile));
    const Profile isolated = home.store.setIsolated(true, profile);
    fs::rename(settings(profile), elsewhere);
    fs::create_symlink(elsewhere, settings(profile));
    home.store.sync(isolated);
    const std::string text = readFile(elsewhere);
    writeFile(isolated.url(Component::claudeMd), "@~/.claude/CLAUDE.md");
    EXPECT_NE(messageOf([&] { home.store.sync(isolated); }), "");
    EXPECT_FALSE(home.store.setIsolated(false, isolated).meta.isolated);
    EXPECT_EQ(readFile(elsewhere), text) << "somebody else's file";
}

TEST_F(Isolation, isolationMatters_OnlyIfSomethingWouldBeKeptOut) {
    NewProfile wanted = request("Nuovo", home.builtIn());
    EXPECT_TRUE(home.store.isolationMatters(wanted)) << "the hidden rule";
    fs::remove(home / ".claude/rules/.nascosta.md");
    EXPECT_FALSE(home.store.isolationMatters(wanted));
    wanted.selection[Component::rules] = {"a.md"};
    EXPECT_TRUE(home.store.isolationMatters(wanted));
    wanted.selection.clear();
    wanted.modes[Component::claudeMd] = separate;
    EXPECT_TRUE(home.store.isolationMatters(wanted));
    EXPECT_TRUE(home.store.isolationMatters(request("Vuoto")));
    fs::remove_all(home / ".claude/rules");
    fs::remove(home / ".claude/CLAUDE.md");
    EXPECT_FALSE(home.store.isolationMatters(request("Vuoto")));
}

} // namespace
} // namespace selvane
