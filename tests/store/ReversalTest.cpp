// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "store/Reversal.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <sys/stat.h>

#include "support/Home.h"
#include "support/RunningProcess.h"

namespace selvane {
namespace {

namespace fs = std::filesystem;
using namespace test;
using enum ShareMode;

constexpr const char* kServers = R"({
  "numStartups": 7,
  "mcpServers": {
    "suo": {
      "command": "b"
    }
  }
}
)";

/// Homes with a profile "Lavoro", what is done to it, and what others do before it is taken back.
struct TakingBack : testing::Test {
    struct Place {
        explicit Place(Home::Processes processes = Home::Processes::ignored) : home(processes) {
            writeTree(home / ".claude", {{"CLAUDE.md", "di tutti"},
                                         {"agents/a.md", "a"},
                                         {"agents/b.md", "b"},
                                         {"skills/s/SKILL.md", "s"},
                                         {"skills/s/testi/uno.md", "uno"},
                                         {"commands/k.md", "k"},
                                         {"rules/r.md", "r"},
                                         {"settings.json", R"({"model": "opus"})"},
                                         {"plugins/p/plugin.js", "p"},
                                         {"plugins/config.json", "{}"}});
            writeFile(home / ".claude.json", R"({"mcpServers": {"mio": {"command": "a"}}})");
            profile = home.make("Lavoro", {{Component::claudeMd, shared},
                                           {Component::commands, separate},
                                           {Component::rules, none},
                                           {Component::plugins, none}});
            for (const char* link : {"agents/a.md", "agents/b.md"})
                fs::remove(profile.configDir / link);
            writeTree(profile.configDir,
                      {{"agents/a.md", "a mia"}, {"agents/b.md", "b mia"}, {"agents/sola.md", "sola"}});
            writeFile(profile.configDir / ".claude.json", kServers);
            writeFile(profile.configDir / "settings.json", R"({"model": "haiku"})");
            writeFile(home.store.desktopDataDir(profile) / "Cookies", "login");
            writeFile(home / "altrove/scritto.md", "di altri");
            takeTrash();
        }

        fs::path operator/(const std::string& below) const { return profile.configDir / below; }
        Tree now() const { return treeOf(home.path); }
        ComponentItem item(Component component, const std::string& name) const {
            for (const ComponentItem& found : home.store.items(component, profile)) {
                if (found.name == name)
                    return found;
            }
            throw std::runtime_error("no item " + name);
        }
        ChangedItem changed(const std::string& name) const {
            return {Component::agents, name, *this / ("agents/" + name), home / (".claude/agents/" + name)};
        }

        Home home;
        Profile profile;
    };
    using Operation = std::function<void(ProfileStore& store, const Place& place)>;

    static Operation mode(Component component, ShareMode mode) {
        return
            [=](ProfileStore& store, const Place& place) { store.setMode(mode, component, place.profile); };
    }
    static Operation reimport(Component component) {
        return [=](ProfileStore& store, const Place& place) {
            store.reimport(component, place.profile, place.home.builtIn());
        };
    }
    static Operation remove(Component component, const std::string& name) {
        return [=](ProfileStore& store, const Place& place) {
            store.remove(place.item(component, name), place.profile, component);
        };
    }
    static void deleteIt(ProfileStore& store, const Place& place) { store.deleteProfile(place.profile); }
    static void relink(ProfileStore& store, const Place& place) {
        store.relink(place.changed("a.md"), place.profile);
    }
    static void relinkAll(ProfileStore& store, const Place& place) {
        store.relinkAll(Component::agents, place.profile);
    }
    static void bring(ProfileStore& store, const Place& place) {
        store.bringToSource(place.changed("a.md"), place.profile);
    }

    /// Everything in the Trash, with its own notes.
    static Tree trash() { return treeOf(fs::path(std::getenv("HOME")) / ".local/share/Trash"); }
    static fs::path trashed(const std::string& name) {
        return fs::path(std::getenv("HOME")) / ".local/share/Trash/files" / name;
    }
    static bool isEmpty(const Tree& trash) {
        return std::ranges::all_of(trash, [](const auto& entry) { return entry.second == "/"; });
    }

    static std::unique_ptr<Reversal> done(const Operation& operation, Place& place) {
        auto reversal = std::make_unique<Reversal>();
        ProfileStore store(place.home.store, nullptr, reversal.get());
        operation(store, place);
        EXPECT_TRUE(reversal->isPossible());
        return reversal;
    }
};

TEST_F(TakingBack, PutsEverythingBackAsItWas_AndLeavesNothingInTheTrash) {
    const std::map<std::string, Operation> operations = {
        {"delete", deleteIt},
        {"remove a link", remove(Component::skills, "s")},
        {"remove a file", remove(Component::agents, "sola.md")},
        {"skills separate", mode(Component::skills, separate)},
        {"skills none", mode(Component::skills, none)},
        {"agents separate", mode(Component::agents, separate)},
        {"commands shared", mode(Component::commands, shared)},
        {"rules separate", mode(Component::rules, separate)},
        {"rules shared", mode(Component::rules, shared)},
        {"CLAUDE.md separate", mode(Component::claudeMd, separate)},
        {"CLAUDE.md extend", mode(Component::claudeMd, extend)},
        {"CLAUDE.md none", mode(Component::claudeMd, none)},
        {"settings none", mode(Component::settings, none)},
        {"plugins separate", mode(Component::plugins, separate)},
        {"settings", reimport(Component::settings)},
        {"plugins", reimport(Component::plugins)},
        {"servers", reimport(Component::mcp)},
        {"relink", relink},
        {"relink all", relinkAll},
        {"bring", bring},
    };
    for (const auto& [name, operation] : operations) {
        SCOPED_TRACE(name);
        Place place;
        fs::permissions(place / "settings.json", fs::perms::owner_read);
        const Tree before = place.now();
        const auto reversal = done(operation, place);
        EXPECT_NE(place.now(), before);
        place.home.store.takeBack(*reversal);
        EXPECT_EQ(place.now(), before);
        EXPECT_TRUE(isEmpty(trash()));
        EXPECT_EQ(fs::status(place / "settings.json").permissions(), fs::perms::owner_read);
    }
}

TEST_F(TakingBack, WhatHasChangedMeanwhile_StaysAndSaysSo) {
    struct Case {
        Operation operation;
        std::function<void(Place& place)> change;
        std::string message; ///< how it begins
    };
    const auto write = [](const std::string& file, const std::string& text) {
        return [=](Place& place) {
            fs::remove_all(place / file);
            writeFile(place / file, text);
        };
    };
    const auto inRecord = [](const std::function<void(ProfileMeta&)>& change) {
        return [=](Place& place) { place.home.store.changeMeta(place.profile, change); };
    };
    const auto gone = [](const std::string& name) { return [=](Place&) { fs::remove_all(trashed(name)); }; };
    const std::string record = "Il profilo \"Lavoro\" è cambiato nel frattempo";
    const std::map<std::string, Case> cases = {
        {"another profile of the id",
         {deleteIt, [](Place& place) { place.home.make("Lavoro"); }, "\"lavoro\" è c"}},
        {"a folder at the old place", {deleteIt, write("nota.md", "nuova"), "\"lavoro\" è cambiato"}},
        {"its account's data again",
         {deleteIt,
          [](Place& place) { writeFile(place.home.store.desktopDataDir(place.profile) / "Cookies", "new"); },
          "\"lavoro\" è cambiato"}},
        {"restored by hand",
         {deleteIt, [](Place& place) { fs::rename(trashed("lavoro.2"), place.profile.configDir); },
          "\"lavoro\" è cambiato"}},
        {"its data taken from the Trash", {deleteIt, gone("lavoro"), "\"lavoro\" non è più nel Cestino"}},
        {"its source deleted",
         {[](ProfileStore& store, const Place& place) {
              ProfileStore(store, nullptr, nullptr).changeMeta(place.profile, [](ProfileMeta& meta) {
                  meta.source = "studio";
              });
              store.deleteProfile(*store.profile("lavoro"));
          },
          [](Place&) {}, "Il profilo da cui \"Lavoro\" eredita non c'è più"}},
        {"the name taken again",
         {remove(Component::agents, "sola.md"), write("agents/sola.md", "x"), "\"sola"}},
        {"the Trash emptied",
         {remove(Component::agents, "sola.md"), gone("sola.md"), "\"sola.md\" non è più"}},
        {"something else in the Trash",
         {remove(Component::agents, "sola.md"),
          [](Place&) {
              fs::remove(trashed("sola.md"));
              writeFile(trashed("sola.md"), "alt");
          },
          "\"sola.md\" non è più"}},
        {"included again",
         {remove(Component::skills, "s"), inRecord([](ProfileMeta& meta) { meta.excluded.clear(); }),
          record}},
        {"deep in a copy",
         {mode(Component::skills, separate), write("skills/s/testi/uno.md", "uno"), "\"s\" è cambiato"}},
        {"more in a copy",
         {mode(Component::skills, separate), write("skills/s/due.md", "due"), "\"s\" è cambia"}},
        {"another mode",
         {mode(Component::skills, separate), inRecord([](ProfileMeta& meta) { meta.modes["skills"] = none; }),
          record}},
        {"a link made again",
         {mode(Component::skills, none),
          [](Place& place) { fs::create_symlink("altrove", place / "skills/s"); }, "\"s\" è cambiato"}},
        {"the profile deleted",
         {mode(Component::skills, none), [](Place& place) { place.home.store.deleteProfile(place.profile); },
          "Il profilo \"Lavoro\" è stato eliminato"}},
        {"the folder replaced by a link",
         {relinkAll,
          [](Place& place) {
              fs::rename(place / "agents", place.home / "agents");
              fs::create_symlink(place.home / "agents", place / "agents");
          },
          "\"a.md\" è cambiato"}},
        {"a file again in one of several", {relinkAll, write("agents/a.md", "nuova"), "\"a.md\" è cambiato"}},
        {"the source's changed",
         {bring, [](Place& place) { writeFile(place.home / ".claude/agents/a.md", "x mia"); },
          "\"a.md\" è cambiato"}},
        {"edited rules",
         {mode(Component::claudeMd, extend), write("CLAUDE.md", "mie"), "\"CLAUDE.md\" è cambi"}},
        {"a file in plugins, its time put back",
         {reimport(Component::plugins),
          [](Place& place) {
              const fs::path file = place / "plugins/p/plugin.js";
              struct stat status = {};
              ASSERT_EQ(::stat(file.c_str(), &status), 0);
              writeFile(file, "P");
              const std::array<timespec, 2> times = {status.st_atim, status.st_mtim};
              ASSERT_EQ(::utimensat(AT_FDCWD, file.c_str(), times.data(), 0), 0);
          },
          "\"plugins\" è cambiato"}},
        {"another server",
         {reimport(Component::mcp), write(".claude.json", R"({"mcpServers": {"terzo": {}}})"),
          "I server MCP sono cambiati"}},
    };
    for (const auto& [name, tried] : cases) {
        SCOPED_TRACE(name);
        Place place;
        const auto reversal = done(tried.operation, place);
        tried.change(place);
        const Tree before = place.now();
        const Tree before2 = trash();
        const std::string message = messageOf([&] { place.home.store.takeBack(*reversal); });
        EXPECT_TRUE(message.starts_with(tried.message)) << message;
        EXPECT_EQ(place.now(), before);
        EXPECT_EQ(trash(), before2);
    }
}

TEST_F(TakingBack, WhatElseHasChangedMeanwhile_Stays) {
    Place place;
    auto reversal = done(remove(Component::skills, "s"), place);
    place.home.store.changeMeta(place.profile, [](ProfileMeta& meta) {
        meta.name = "Officina";
        meta.excluded["agents"] = {"z.md"};
    });
    place.home.store.takeBack(*reversal);
    const ProfileMeta meta = place.home.store.profile("lavoro")->meta;
    EXPECT_EQ(meta.name, "Officina");
    EXPECT_EQ(meta.excluded.at("agents"), std::vector<std::string>{"z.md"});
    EXPECT_TRUE(fs::is_symlink(place / "skills/s"));

    reversal = done(reimport(Component::mcp), place);
    std::string state = readFile(place / ".claude.json");
    state.replace(state.find('7'), 1, "8");
    writeFile(place / ".claude.json", state);
    place.home.store.takeBack(*reversal);
    state = readFile(place / ".claude.json");
    EXPECT_NE(state.find('8'), state.npos) << state;
    EXPECT_NE(state.find("suo"), state.npos) << state;
    EXPECT_EQ(state.find("mio"), state.npos) << state;

    // Without a state before, it goes again as long as nobody has written into it.
    fs::remove(place / ".claude.json");
    reversal = done(reimport(Component::mcp), place);
    EXPECT_TRUE(fs::exists(place / ".claude.json"));
    place.home.store.takeBack(*reversal);
    EXPECT_FALSE(fs::exists(place / ".claude.json"));
}

TEST_F(TakingBack, ADeletedProfileWhoseAccountIsOpen_StaysInTheTrash) {
    Place place(Home::Processes::seen);
    const fs::path data = place.home.store.desktopDataDir(place.profile);
    const auto reversal = done(deleteIt, place);
    {
        const RunningProcess claude({"--user-data-dir=" + data.string()}, {{"PATH", "/bin"}},
                                    "claude-desktop");
        place.home.workspace.apps = {claude.app()};
        EXPECT_EQ(messageOf([&] { place.home.store.takeBack(*reversal); }),
                  "L'account di \"Lavoro\" è aperto in Claude: chiudilo prima");
        EXPECT_FALSE(fs::exists(place.profile.configDir));
    }
    place.home.workspace.apps.clear();
    place.home.store.takeBack(*reversal);
    EXPECT_EQ(readFile(data / "Cookies"), "login");
    EXPECT_TRUE(place.home.store.profile("lavoro"));
}

TEST_F(TakingBack, AnIsolatedProfile_KeepsOutTheRightRulesAgain) {
    Place place;
    place.home.store.setIsolated(true, place.profile);
    place.profile = *place.home.store.profile("lavoro");
    const std::string settings = readFile(place / "settings.json");
    const auto reversal = done(mode(Component::rules, shared), place);
    EXPECT_NE(readFile(place / "settings.json"), settings);
    place.home.store.takeBack(*reversal);
    EXPECT_EQ(readFile(place / "settings.json"), settings);
}

TEST_F(TakingBack, ManyLinks_AreCopiedInSeveralRoundsAndComeBack) {
    Place place;
    constexpr int kMany = 1500; // more than get their names together
    for (int number = 0; number < kMany; ++number)
        writeFile(place.home / (".claude/commands/" + std::to_string(number) + ".md"), "x");
    place.home.store.setMode(shared, Component::commands, place.profile);
    place.profile = *place.home.store.profile("lavoro");
    const Tree before = place.now();
    const auto reversal = done(mode(Component::commands, separate), place);
    EXPECT_FALSE(fs::is_symlink(place / "commands/7.md"));
    place.home.store.takeBack(*reversal);
    EXPECT_EQ(place.now(), before);
    EXPECT_TRUE(isEmpty(trash()));
}

} // namespace
} // namespace selvane
