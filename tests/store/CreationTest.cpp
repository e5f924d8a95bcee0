// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include <gtest/gtest.h>

#include "model/LauncherError.h"
#include "platform/json/Json.h"
#include "store/SettingsPaths.h"
#include "support/Home.h"

namespace selvane {
namespace {

namespace fs = std::filesystem;
using namespace test;
using enum ShareMode;
using Modes = std::map<Component, ShareMode>;

const Modes kSeparate = {{Component::skills, separate},       {Component::agents, separate},
                         {Component::commands, separate},     {Component::rules, separate},
                         {Component::outputStyles, separate}, {Component::claudeMd, separate}};
const Modes kNoImports = {{Component::settings, none}, {Component::plugins, none}, {Component::mcp, none}};

Tree joined(Tree tree, const Tree& more) {
    tree.insert(more.begin(), more.end());
    return tree;
}

/// The tree of a new profile without its record and its note, whose presence is checked here.
Tree treeOfNew(const Home& home, const Profile& profile) {
    EXPECT_EQ(home.store.profile(profile.id), profile) << "the record tells what was returned";
    Tree tree = treeOf(profile.configDir);
    EXPECT_EQ(tree.erase(".launcher.json") + tree.erase("rules/selvane-profile.md"), 2U);
    return tree;
}

TEST(Creation, create_EachMode_MakesExactlyThatTree) {
    Home home;
    const std::string source = (home / ".claude").string();
    writeTree(home.path,
              {{".claude/skills/uno/SKILL.md", "uno"},
               {".claude/skills/uno/link", "-> SKILL.md"},
               {".claude/skills/due", "-> uno"},
               {".claude/skills/.nascosto", "x"},
               {".claude/agents/caff\xE8.md", "agente"},
               {".claude/rules/selvane-profile.md", "nota"},
               {".claude/CLAUDE.md", "-> ../regole.md"},
               {"regole.md", "regole\n"},
               {".claude/settings.json", "{\"hook\": \"" + source + "/h.sh\"}"},
               {".claude/settings.local.json", "{}"},
               {".claude/plugins/known.json", "[\"~/.claude/plugins\", \"" + source + "\"]"},
               {".claude/plugins/extern.json", "-> ../../extern.json"},
               {".claude/plugins/cache/deep.json", source + "/"},
               {"extern.json", source + "/"},
               {".claude.json", R"({"userID": 1, "mcpServers": {"b": 1.10, "a": 1e3}, "projects": {}})"}});
    const Tree folders = {
        {"skills", "/"}, {"agents", "/"}, {"commands", "/"}, {"output-styles", "/"}, {"rules", "/"}};
    const Tree links = {{"skills/uno", "-> " + source + "/skills/uno"},
                        {"skills/due", "-> " + source + "/skills/due"},
                        {"agents/caff\xE8.md", "-> " + source + "/agents/caff\xE8.md"}};
    const Tree copies = {{"skills/uno", "/"},
                         {"skills/uno/SKILL.md", "uno"},
                         {"skills/uno/link", "-> SKILL.md"},
                         {"skills/due", "/"},
                         {"skills/due/SKILL.md", "uno"},
                         {"skills/due/link", "-> SKILL.md"},
                         {"agents/caff\xE8.md", "agente"},
                         {"CLAUDE.md", "regole\n"}};
    const std::string header =
        "<!-- Regole condivise dal profilo \"Principale\" (gestito da Selvane) -->\n@" + source +
        "/CLAUDE.md\n\n# Regole specifiche di questo profilo\n\n";
    const Tree before = treeOf(home / ".claude");
    for (const auto& [name, modes, components] :
         {std::tuple("esteso", Modes{}, joined(links, {{"CLAUDE.md", header}})),
          std::tuple("copie", kSeparate, copies)}) {
        const std::string own = (home.store.root() / name).string();
        const Tree imports = {
            {"settings.json", "{\"hook\": \"" + own + "/h.sh\"}"},
            {"plugins", "/"},
            {"plugins/known.json", "[\"" + own + "/plugins\", \"" + own + "\"]"},
            {"plugins/extern.json", "-> ../../extern.json"},
            {"plugins/cache", "/"},
            {"plugins/cache/deep.json", source + "/"},
            {".claude.json", "{\n  \"mcpServers\": {\n    \"b\": 1.10,\n    \"a\": 1e3\n  }\n}\n"}};
        EXPECT_EQ(treeOfNew(home, home.make(name, modes)), joined(folders, joined(imports, components)));
        for (const char* file : {"settings.json", ".claude.json"})
            EXPECT_EQ(fs::status(home.store.root() / name / file).permissions(), kOwnerOnly) << file;
    }
    Modes modes = kNoImports;
    modes[Component::claudeMd] = shared;
    const Tree linked = {{"CLAUDE.md", "-> " + source + "/CLAUDE.md"}};
    EXPECT_EQ(treeOfNew(home, home.make("link", modes)), joined(folders, joined(links, linked)));
    const Profile alone = home.store.create(request(" Solo \n"));
    EXPECT_EQ(treeOfNew(home, alone), folders);
    EXPECT_EQ(alone.meta.name, "Solo");
    EXPECT_EQ(alone.meta.modes.at("skills"), none) << "without a source";
    EXPECT_EQ(treeOf(home / ".claude"), before);
    EXPECT_EQ(readFile(home / "extern.json"), source + "/") << "a link inside the plugins is not followed";

    fs::remove(home / ".claude/CLAUDE.md");
    EXPECT_EQ(treeOfNew(home, home.make("appeso", modes))["CLAUDE.md"], linked.at("CLAUDE.md"));
    EXPECT_FALSE(treeOfNew(home, home.make("senza", kSeparate)).contains("CLAUDE.md"));
}

TEST(Creation, create_Names_GiveFreeIds) {
    Home home;
    fs::create_directory_symlink("/nowhere", home.store.root() / "preso");
    using Names = std::map<std::string, std::string>;
    for (const auto& [name, id] : Names{{"Ciao Mondo", "ciao-mondo"},
                                        {"Default", "profilo-default"},
                                        {"bin", "profilo-bin"},
                                        {"?!…", "profilo"},
                                        {".desktop-data", "desktop-data"},
                                        {"preso", "preso-2"},
                                        {"Проект 1/2", "проект-1-2"},
                                        {"\u00A0日本語\u3000", "日本語"}})
        EXPECT_EQ(home.store.create(request(name)).id, id) << name;
    EXPECT_EQ(home.store.create(request("Ciào  mondo!")).id, "ciao-mondo-2");
    EXPECT_EQ(home.store.create(request("--Ciao--mondo--")).id, "ciao-mondo-3");
    const Tree before = treeOf(home.path);
    for (const char* name : {"", " \t\n\u00A0", "a\nb", "caff\xE8"})
        EXPECT_THROW(home.store.create(request(name)), LauncherError) << name;
    EXPECT_THROW(home.store.create(request(std::string(10'000, 'a'))), fs::filesystem_error);
    EXPECT_THROW(home.store.create(request("a", {}, "../x")), LauncherError);
    EXPECT_EQ(treeOf(home.path), before);
}

TEST(Creation, create_Selection_ExcludesTheOtherItems) {
    Home home;
    writeTree(
        home / ".claude",
        {{"skills/uno", ""}, {"skills/due", ""}, {"skills/Tre", ""}, {"agents/a", ""}, {"rules/r", ""}});
    NewProfile selective = request("Scelta", home.builtIn());
    selective.selection = {{Component::skills, {"due", "altro"}}, {Component::agents, {}}};
    const Profile profile = home.store.create(selective);
    EXPECT_EQ(profile.meta.excluded.at("skills"), (std::vector<std::string>{"Tre", "uno"}));
    EXPECT_EQ(profile.meta.excluded.at("agents"), std::vector<std::string>{"a"});
    Tree links = treeOfNew(home, profile);
    EXPECT_EQ(links.count("skills/due") + links.count("rules/r"), 2U);
    EXPECT_EQ(links.count("skills/uno") + links.count("skills/Tre") + links.count("agents/a"), 0U);
    EXPECT_TRUE(home.store.sync(*home.store.profile(profile.id)).isEmpty());
}

TEST(Creation, create_DanglingItems_AreLeftOutAndListed) {
    Home home;
    writeTree(home / ".claude/skills", {{"uno.md", "uno"}, {"perso.md", "-> /nowhere"}, {"x.md", "-> x.md"}});
    NewProfile wanted = request("Lavoro", home.builtIn());
    wanted.modes = kSeparate;
    wanted.selection = {{Component::skills, {"uno.md", "perso.md"}}};
    const Profile profile = home.store.create(wanted);
    EXPECT_EQ(treeOf(profile.url(Component::skills)), (Tree{{"uno.md", "uno"}}));
    EXPECT_EQ(home.store.uncopiedItems(profile), std::vector<std::string>{"Skill: perso.md"});
    EXPECT_TRUE(home.store.uncopiedItems(home.make("Unito")).empty());
}

TEST(Creation, create_FailureMidway_LeavesNoTrace) {
    for (const auto& [file, content] :
         Tree{{".claude.json", "{"}, {".claude/rules", "-> /nowhere"}, {".claude/plugins", "x"}}) {
        Home home;
        writeTree(home.path, {{".claude/skills/uno.md", "uno"}, {file, content}});
        const Tree before = treeOf(home.path);
        const std::string message = messageOf([&] { home.make("Lavoro", kSeparate); });
        EXPECT_NE(message.find(fs::path(file).filename()), std::string::npos) << message;
        EXPECT_EQ(treeOf(home.path), before) << file;
    }
}

/// Paths in JSON strings, raw and escaped, and also with the profile's folder inside the source's.
TEST(Imports, importSettings_PathWithQuotesAndAccents_IsRewrittenOnce) {
    for (const auto& [name, root] :
         {std::pair("l'età \"d'oro\"", "profiles"), std::pair("\"oro\"", ".claude/profiles")}) {
        Home home(Home::Processes::ignored, name);
        ProfileStore store({{"HOME", home.path}, {"CLAUDE_LAUNCHER_ROOT", home / root}}, home.claude);
        const auto settings = [](const std::string& dir, const std::string& tilde,
                                 const std::string& other) -> Json {
            return {{"file", dir + "/h.sh"},
                    {"folder", dir},
                    {"tilde", "sh " + tilde + "/h.sh"},
                    {"other", other + "x/y"}};
        };
        const std::string conf = (home / ".claude").string();
        for (const bool asciiOnly : {false, true}) {
            writeFile(home / ".claude/settings.json",
                      settings(conf, "~/.claude", conf).dump(1, ' ', asciiOnly));
            const std::string own = store.create(request("p", home.builtIn())).configDir.string();
            EXPECT_EQ(Json::parse(readFile(own + "/settings.json")), settings(own, own, conf))
                << root << asciiOnly;
        }
    }
}

TEST(Imports, withRewrittenPaths_FolderNamedLikeJson_JoinsNoTexts) {
    const auto profileAt = [](const std::string& id, const char* folder) { return Profile{id, {}, folder}; };
    const Profile target = profileAt("p", "/b");
    for (const std::string text : {R"(["/a","/x"])", R"(["/a\\","/x"])"})
        EXPECT_EQ(withRewrittenPaths(text, profileAt("default", "/a\",\""), target), text);
    EXPECT_EQ(withRewrittenPaths(R"(["/a\",\"/x"])", profileAt("default", "/a\",\""), target), R"(["/b/x"])");
    EXPECT_EQ(withRewrittenPaths("[\"/\xe9/x\"]", profileAt("default", "/\xe9"), target), R"(["/b/x"])");
}

TEST(Imports, import_OverOwnFiles_MovesThemToTheTrash) {
    Home home;
    const Profile profile = home.make("Lavoro", kNoImports);
    const auto import = [&] {
        home.store.reimport(Component::settings, profile, home.builtIn());
        home.store.reimport(Component::plugins, profile, home.builtIn());
    };
    writeTree(profile.configDir, {{"settings.json", "mine"}, {"plugins/mine", "mine"}});
    import();
    EXPECT_EQ(takeTrash(), Tree{}) << "nothing to import, nothing replaced";
    writeTree(home / ".claude", {{"settings.json", "new"}, {"plugins/new", "new"}});
    import();
    EXPECT_EQ(takeTrash(), (Tree{{"settings.json", "mine"}, {"plugins", "/"}, {"plugins/mine", "mine"}}));
    EXPECT_EQ(readFile(profile.configDir / "settings.json"), "new");
    EXPECT_EQ(treeOf(profile.configDir / "plugins"), (Tree{{"new", "new"}}));

    const std::string latin = "{\"caff\xE8\": \"" + (home / ".claude/h.sh").string() + "\"}";
    writeTree(home / ".claude", {{"settings.json", latin}, {"plugins/known.json", latin}});
    import();
    for (const char* name : {"settings.json", "plugins/known.json"})
        EXPECT_EQ(readFile(profile.configDir / name), latin) << "no JSON, so it stays as it is";
}

TEST(Imports, importMCP_EachState_TakesTheServersOnly) {
    const std::string servers = "{\n  \"mcpServers\": {\n    \"a\": 1\n  }";
    const struct {
        const char* source;
        const char* own;      ///< "" if missing
        std::string expected; ///< "" if missing, "failure" if refused
        bool trashes = false;
    } cases[] = {
        {R"({"userID": "u", "hasCompletedOnboarding": true, "mcpServers": {"a": 1}})", "",
         servers + ",\n  \"hasCompletedOnboarding\": true\n}\n"},
        {R"({"mcpServers": null})", "", ""},
        {R"([{"mcpServers": {"a": 1}}])", "", ""},
        {R"({"hasCompletedOnboarding": true, "mcpServers": {"a": 1}})",
         R"({"z": 12345678901234567890123, "mcpServers": {}, "b": 1.0})",
         "{\n  \"z\": 12345678901234567890123,\n  \"mcpServers\": {\n    \"a\": 1\n  },\n  \"b\": 1.0\n}\n"},
        {R"({"mcpServers": {"a": 1}})", R"({"mcpServers": {"own": 1}})", servers + "\n}\n", true},
        {R"({"mcpServers": {"a": 1}})", R"({"mcpServers":{"a":1}})", R"({"mcpServers":{"a":1}})"},
        {"{}", R"({"mcpServers":{"own":1}})", R"({"mcpServers":{"own":1}})"},
        {R"({"mcpServers": {"a": 1}})", "{", "failure"},
        {R"({"mcpServers": {"a": 1}})", "[1]", "failure"},
    };
    for (const auto& [source, own, expected, trashes] : cases) {
        Home home;
        const Profile profile = home.make("Lavoro");
        const fs::path file = profile.configDir / ".claude.json";
        if (*own != '\0')
            writeFile(file, own);
        writeFile(home / ".claude.json", source);
        try {
            home.store.reimport(Component::mcp, profile, home.builtIn());
            EXPECT_EQ(readFile(file), expected) << source << own;
        } catch (const JsonError& error) {
            EXPECT_NE(std::string(error.what()).find(file.string()), std::string::npos) << error.what();
            EXPECT_EQ(expected, "failure") << own;
            EXPECT_EQ(readFile(file), own);
        }
        EXPECT_EQ(takeTrash(), trashes ? (Tree{{".claude.json.precedente", own}}) : Tree{}) << source << own;
    }
}

} // namespace
} // namespace selvane
