// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "store/ProfileStore.h"

#include <gtest/gtest.h>

#include "store/ProfileRecord.h"
#include "support/Home.h"

namespace selvane {
namespace {

namespace fs = std::filesystem;
using namespace test;
using Texts = std::vector<std::string>;

TEST(Store, locations_FromTheEnvironment_AreSpelledInOneWay) {
    Home home;
    const ProfileStore store({{"HOME", home.path.string() + "/"},
                              {"CLAUDE_LAUNCHER_ROOT", home.path.string() + "//.//profili/"},
                              {"CLAUDE_LAUNCHER_DEFAULT_JSON", home / "conf.json"},
                              {"CLAUDE_LAUNCHER_DESKTOP_DIR", ""}},
                             home.claude);
    EXPECT_EQ(store.root().string(), (home / "profili").string());
    EXPECT_TRUE(fs::is_directory(home / "profili"));
    const Profile builtIn = *store.profile("default");
    EXPECT_EQ(store.globalJSON(builtIn), home / "conf.json");
    EXPECT_EQ(builtIn.url(Component::mcp), home / "conf.json");
    EXPECT_EQ(builtIn.url(Component::settings), builtIn.configDir / "settings.json");
    EXPECT_EQ(store.profile("default")->configDir.string(), (home / ".claude").string());
    EXPECT_TRUE(store.testMode()) << "also with an empty value";
    writeFile(home / "file", "");
    const ProfileStore broken({{"HOME", home.path}, {"CLAUDE_LAUNCHER_ROOT", home / "file"}}, home.claude);
    EXPECT_EQ(broken.loadAll().size(), 1U);
    EXPECT_FALSE(broken.testMode());
    for (const auto& [configured, folder] : Tree{{"relativo", home / ".config"}, {"/conf", "/conf"}}) {
        const ProfileStore plain({{"HOME", home.path}, {"XDG_CONFIG_HOME", configured}}, home.claude);
        EXPECT_EQ(plain.liveDesktopDir().string(), folder + "/Claude");
    }
}

TEST(Store, loadAll_MixedRoot_ListsValidProfilesByName) {
    Home home;
    const fs::path root = home.store.root();
    writeTree(root, {{"z1/.launcher.json", R"({"name": "beta"})"},
                     {"a1/.launcher.json", R"({"name": "Zeta"})"},
                     {"a2/.launcher.json", R"({"name": "èlite"})"},
                     {"default/.launcher.json", R"({"name": "Foca"})"},
                     {"vecchio/CLAUDE.md", ""},
                     {"rotto/.launcher.json", R"({"name": "Rotto", "modes": {"skills": "linked"}})"},
                     {"ciclo/.launcher.json", "-> .launcher.json"},
                     {".Trash/.launcher.json", R"({"name": "Via"})"},
                     {"notes.txt", ""}});
    Texts expected = {"default", "z1", "a2", "default", "a1"};
    for (const char* id : {"m1", "m2", "m3", "m4", "m5"})
        writeFile(root / id / ".launcher.json", id[1] % 2 ? R"({"name": "Alfa"})" : R"({"name": "alfa"})");
    auto place = expected.begin() + 1;
    for (const auto& entry : fs::directory_iterator(root)) { // equal names keep the listing's order
        if (entry.path().filename().string().starts_with('m'))
            place = expected.insert(place, entry.path().filename()) + 1;
    }
    Texts ids;
    for (const Profile& profile : home.store.loadAll())
        ids.push_back(profile.id);
    EXPECT_EQ(ids, expected);
    EXPECT_EQ(home.store.profile("default")->meta.name, "Principale");
    for (const char* id :
         {"", ".", "..", "Z1", "z1/", "../.claude-profiles/z1", ".Trash", "rotto", "notes.txt"})
        EXPECT_FALSE(home.store.profile(id)) << id;
}

TEST(Store, defaultProfile_WithARecord_IsWhatTheRecordSays) {
    Home home;
    const fs::path record = home.store.root() / "default.json";
    writeFile(record, R"({"name": "Casa"})");
    EXPECT_EQ(home.builtIn().meta.name + home.builtIn().meta.look.symbol, "Casaperson.crop.circle");
    writeFile(record, R"({"name": "Casa", "created": "ieri"})");
    EXPECT_EQ(home.builtIn().meta.name + home.builtIn().meta.look.symbol, "Principalehouse");
    const Tree before = treeOf(home.path);
    home.store.markLaunched(home.builtIn());
    fs::remove(home.store.root() / ".active");
    const std::string message = messageOf([&] { home.store.saveMeta(home.builtIn()); });
    EXPECT_NE(message.find(record), message.npos) << message;
    EXPECT_EQ(treeOf(home.path), before) << "a damaged record is never written over";
    fs::remove(record);
    home.store.saveMeta(home.builtIn());
    EXPECT_EQ(treeOf(home.path), (Tree{{".claude-profiles", "/"},
                                       {".claude-profiles/default.json", encoded(home.builtIn().meta)}}));
}

TEST(Store, changeMeta_RecordOfALaterVersion_KeepsItsUnknownKeys) {
    Home home;
    const fs::path record = home.store.root() / "lavoro/.launcher.json";
    writeFile(record, R"({"z": [1.0, {"name": 1e3}], "name": "Lavoro", "created": "2025-03-01T09:30:00Z",
                          "Zeta": null, "account": null, "z": [1.50]})");
    home.store.changeMeta(*home.store.profile("lavoro"), [](ProfileMeta& meta) { meta.summary = "s"; });
    EXPECT_EQ(readFile(record), R"({
  "Zeta": null,
  "created": "2025-03-01T09:30:00Z",
  "excluded": {},
  "modes": {},
  "name": "Lavoro",
  "summary": "s",
  "symbol": "person.crop.circle",
  "z": [
    1.50
  ]
}
)");
}

TEST(Store, damagedProfiles_EachKindOfDamage_IsNamedAndCanBeRepaired) {
    Home home;
    const fs::path root = home.store.root();
    home.make("Sano");
    const std::string large = R"({"name": "Grande"})" + std::string(FileManager::kLongestRecord, ' ');
    writeTree(root, {{"cartella/.launcher.json/x", "x"},
                     {"default/.launcher.json", ""},
                     {"giro/.launcher.json", "-> .launcher.json"},
                     {"grande/.launcher.json", large},
                     {"rotto/.launcher.json", R"({"name": "Rotto", "modes": {"skills": "linked"}})"},
                     {"rotto/CLAUDE.md", "regole"},
                     {"appeso/.launcher.json", "-> assente"},
                     {"vecchio/CLAUDE.md", ""},
                     {".nascosto/.launcher.json", ""},
                     {"default.json", ""}});
    const Tree before = treeOf(root);
    Texts damaged;
    for (const DamagedProfile& profile : home.store.damagedProfiles()) {
        damaged.push_back(profile.id);
        EXPECT_EQ(profile.configDir, root / profile.id);
        EXPECT_NE(profile.reason.find(root / profile.id / ".launcher.json"), std::string::npos)
            << profile.reason;
    }
    // A record that is a link to nowhere counts as none.
    EXPECT_EQ(damaged, (Texts{"cartella", "default", "grande", "rotto"}));
    EXPECT_EQ(home.store.loadAll().size(), 2U);

    Profile stale = *home.store.profile("sano");
    writeFile(root / "sano/.launcher.json", "{");
    EXPECT_NE(messageOf([&] { home.store.sync(stale); }), "") << "a record that was valid when it was loaded";
    EXPECT_EQ(readFile(root / "sano/.launcher.json"), "{");
    for (const std::string& id : damaged)
        home.store.repair(id);
    const Tree trash = takeTrash();
    EXPECT_EQ(trash.size(), damaged.size() + 1) << "also what was in the folder";
    EXPECT_EQ(home.store.damagedProfiles().size(), 1U) << "the one damaged last";
    EXPECT_EQ(home.store.profile("rotto")->meta.name, "rotto");
    EXPECT_EQ(readFile(root / "rotto/CLAUDE.md") + readFile(root / "default.json"), "regole");
    const std::string record = readFile(root / "rotto/.launcher.json");
    home.store.repair("rotto");
    EXPECT_EQ(readFile(root / "rotto/.launcher.json"), record) << "nothing to repair";
    EXPECT_NE(messageOf([&] { home.store.repair("assente"); }), "");
    EXPECT_NE(messageOf([&] { home.store.repair("../x"); }), "");
    EXPECT_EQ(takeTrash(), Tree{});
}

TEST(Store, markLaunched_AfterAnEdit_KeepsTheEdit) {
    Home home;
    const Profile profile = home.make("Lavoro");
    Profile edited = profile;
    edited.meta.summary = "nuovo";
    home.store.saveMeta(edited);
    home.store.markLaunched(profile);
    EXPECT_EQ(readFile(home.store.root() / ".active"), "lavoro");
    EXPECT_EQ(home.store.profile("lavoro")->meta.summary, "nuovo");
    EXPECT_TRUE(home.store.profile("lavoro")->meta.lastLaunched);
    writeFile(home.store.root() / ".active", " studio\r\n");
    EXPECT_EQ(home.store.activeID(), "studio");
    fs::remove_all(home.store.root());
    EXPECT_NO_THROW(home.store.markLaunched(profile));
}

TEST(Store, profileNote_WrittenTwice_LeavesTheFileUntouched) {
    Home home;
    const Profile profile =
        home.make("Lavoro", {{Component::rules, ShareMode::none}, {Component::agents, ShareMode::separate}});
    const fs::path note = profile.url(Component::rules) / "selvane-profile.md";
    const std::string text =
        R"(<!-- Written by Selvane for Claude on every launch: changes to this file are overwritten. -->
# Selvane profile "Lavoro"
This session runs in the Selvane profile "Lavoro". Its user configuration directory (CLAUDE_CONFIG_DIR) is `~/.claude-profiles/lavoro` ()" +
        profile.configDir.string() + R"(), not `~/.claude`.
- Install user-level skills, agents, commands, output styles and rules in `~/.claude-profiles/lavoro/skills`, `~/.claude-profiles/lavoro/agents`, `~/.claude-profiles/lavoro/commands`, `~/.claude-profiles/lavoro/output-styles` and `~/.claude-profiles/lavoro/rules`. Plugins and marketplaces installed with `claude plugin …` from this session also go to this profile, so look for them under `~/.claude-profiles/lavoro/plugins` and `~/.claude-profiles/lavoro/settings.json`.
- `~/.claude` is the Main profile. Don't write there (it's outside this session's configuration) unless the user explicitly asks to change the Main profile; in that case suggest running the command from a terminal outside Claude.
)";
    EXPECT_EQ(
        readFile(note),
        text + "- Items in `skills/`, `commands/`, `output-styles/` that are symlinks into `" +
            (home / ".claude").string() +
            R"(` are shared with the profile "Principale": editing them changes that profile too. New items created here stay in this profile only. To share a new item with every profile linked to "Principale", it must be installed in "Principale"; Selvane links it here at the next launch.
)");
    const fs::file_time_type old = fs::file_time_type::clock::now() - std::chrono::hours(1);
    fs::last_write_time(note, old);
    home.store.writeProfileNote(profile);
    EXPECT_EQ(fs::last_write_time(note), old);

    Profile alone = profile;
    alone.meta.source.reset();
    writeFile(home / "other.md", text);
    fs::remove(note);
    fs::create_symlink(home / "other.md", note);
    home.store.writeProfileNote(alone);
    EXPECT_EQ(treeOf(note.parent_path()), (Tree{{"selvane-profile.md", text}})) << "a link is replaced";
    home.store.writeProfileNote(home.builtIn());
    EXPECT_FALSE(fs::exists(home / ".claude"));
}

TEST(Store, terminalHelper_RootWithShellCharacters_RunsClaudeWithTheProfile) {
    Home home(Home::Processes::ignored, "a \"b\" $HOME `c` \\d\\\\");
    const Profile profile = home.make("Lavoro");
    writeFile(home.store.root() / "senza/CLAUDE.md", "");
    const fs::path script = home.store.installTerminalHelper();
    EXPECT_EQ(fs::status(script).permissions(), fs::perms(0755));
    writeFile(home.folder / "bin/claude",
              "#!/bin/sh\nprintf '%s\\n' \"${CLAUDE_CONFIG_DIR-unset}\" \"$@\"\n");
    fs::permissions(home.folder / "bin/claude", fs::perms(0755));
    // Runs it as "$0" of a shell, so that no part of its path is interpreted.
    const auto run = [&](const std::string& arguments) {
        const std::string path = (home.folder / "bin").string() + ":/usr/bin:/bin",
                          output = home.folder / "output";
        const std::string command =
            "CLAUDE_CONFIG_DIR=x PATH=" + path + " \"$0\" " + arguments + " >" + output + " 2>&1";
        const int status = process::run("/bin/sh", {"-c", command, script.string()}, {}, "/");
        return readFile(output) + std::to_string(status);
    };
    EXPECT_EQ(run("--list"), "default\nlavoro\n0");
    EXPECT_EQ(run(""), "default\nlavoro\n0");
    EXPECT_EQ(run("default -p 'a  b'"), "unset\n-p\na  b\n0");
    EXPECT_EQ(run("lavoro --resume"), profile.configDir.string() + "\n--resume\n0");
    EXPECT_EQ(run("senza"), "Profilo sconosciuto: senza\n1");
}

} // namespace
} // namespace selvane
