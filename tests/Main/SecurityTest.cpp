// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT
//
// Configuration made by others: its paths must lead nowhere they shouldn't, and its names must fake nothing.

#include <algorithm>
#include <cctype>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include "support/Command.h"
#include "support/Home.h"

namespace selvane::test {
namespace {

namespace fs = std::filesystem;

/// Only visible characters, apart from the ends of fields and lines.
bool isPrintable(const std::string& output) {
    return std::none_of(output.begin(), output.end(), [](unsigned char byte) {
        return std::iscntrl(byte) != 0 && byte != '\n' && byte != '\t';
    });
}

class Hostile : public testing::Test {
protected:
    Hostile() {
        home.environment["CLAUDE_LAUNCHER_DESKTOP_DIR"] = (home / "dati").string();
        writeFile(victim / "prezioso/file", "tenere");
        fs::permissions(victim / "prezioso/file", fs::perms::owner_read);
    }
    void TearDown() override {
        EXPECT_EQ(treeOf(victim), victimBefore);
        struct stat status {};
        ASSERT_EQ(stat((victim / "prezioso/file").c_str(), &status), 0);
        EXPECT_EQ(status.st_mode & ALLPERMS, 0400U);
    }

    CommandHome home;
    fs::path victim = home / "vittima";
    Tree victimBefore = {{"prezioso", "/"}, {"prezioso/file", "tenere"}};
    fs::path profile = home / ".claude-profiles/lavoro";
};

TEST_F(Hostile, LinksAmongItemsLeadNowhere) {
    const fs::path skills = home / ".claude/skills";
    writeFile(skills / "pdf/SKILL.md", "testo");
    fs::create_directory_symlink(victim, skills / "pdf/dentro");
    fs::create_directory_symlink("..", skills / "pdf/su");
    fs::create_directory_symlink("giro", skills / "pdf/giro");
    home.output({"create", "Lavoro", "--from", "default", "--mode", "skills=separate"});
    EXPECT_EQ(fs::read_symlink(profile / "skills/pdf/dentro"), victim);
    fs::create_directory_symlink("/", skills / "radice");
    fs::create_directory_symlink("giro", skills / "giro");
    const Outcome around = home.run({"create", "Intorno", "--from", "default", "--mode", "skills=separate"});
    EXPECT_TRUE(around.err.starts_with("Errore: /")) << around;
    EXPECT_FALSE(fs::exists(home / ".claude-profiles/intorno"));
    for (const std::string mode : {"shared", "none", "shared", "none"}) {
        EXPECT_EQ(home.run({"set-mode", "lavoro", "skills=" + mode}).status, 0) << mode;
        EXPECT_EQ(home.run({"sync", "lavoro"}).status, 0) << mode;
    }
    const Outcome endless = home.run({"set-mode", "lavoro", "skills=separate"});
    EXPECT_TRUE(endless.err.starts_with("Errore: /")) << endless;
    EXPECT_EQ(home.run({"backup", home / "b.zip"}).status, 0);
}

TEST_F(Hostile, LinkedFoldersAreLeftAlone) {
    const fs::path skills = home / ".claude/skills";
    writeFile(skills / "pdf/SKILL.md", "testo");
    home.output({"create", "Lavoro", "--from", "default"});
    // What set-mode would remove or convert, and what sync would remove, in a folder of the profile's own.
    for (const char* name : {"pdf", "sparita"}) {
        fs::create_directory_symlink(skills / name, victim / name);
        victimBefore[name] = "-> " + (skills / name).string();
    }
    for (const std::string name : {"skills", "agents", "rules"}) {
        fs::remove_all(profile / name);
        fs::create_directory_symlink(victim, profile / name);
    }
    for (const std::string mode : {"separate", "none", "shared"}) {
        const Outcome refused = home.run({"set-mode", "lavoro", "skills=" + mode});
        EXPECT_EQ(refused.status, mode == "shared" ? 0 : 1) << refused;
        EXPECT_EQ(home.run({"sync", "lavoro"}).status, 0);
    }
    EXPECT_EQ(home.run({"set-mode", "lavoro", "rules=separate"}).status, 1);
    fs::create_directory_symlink(victim, home / ".claude-profiles/bin");
    EXPECT_EQ(home.run({"install-helper"}).status, 1);
}

TEST_F(Hostile, NamesForgeNoRecords) {
    const fs::path skills = home / ".claude/skills";
    for (const std::string name : {"a\ncommands\tfinto\town", "b\rc", "\x1b[2J\x1b]0;titolo\a", "d\u0085e"})
        writeFile(skills / name, "");
    home.output({"create", "Lavoro", "--from", "default"});
    writeFile(
        home / ".claude-profiles/strano/.launcher.json",
        R"({"name": "X\n\u001b[31mdefault\tFinto", "source": "a\tb\nc", "excluded": {"skills": ["\n"]}})");
    writeFile(home / "dati/claude-code-sessions/a/o/local_1.json",
              R"({"sessionId": "s\n2\tfinta", "title": "\u001b[2Jtitolo\r", "cwd": "/x\ty"})");

    for (const std::vector<std::string>& arguments : {std::vector<std::string>{"list"},
                                                      {"items", "default"},
                                                      {"items", "lavoro"},
                                                      {"desktop-status"},
                                                      {"sessions", "default"}}) {
        const std::string output = home.output(arguments);
        EXPECT_TRUE(isPrintable(output)) << output;
    }
    const std::string items = home.output({"items", "lavoro"});
    EXPECT_EQ(std::count(items.begin(), items.end(), '\n'), 4);
    EXPECT_EQ(std::count(items.begin(), items.end(), '\t'), 8);
    const std::string sessions = home.output({"sessions", "default"});
    EXPECT_EQ(std::count(sessions.begin(), sessions.end(), '\n'), 1);
    EXPECT_EQ(std::count(sessions.begin(), sessions.end(), '\t'), 3);
    const std::string profiles = home.output({"list"});
    EXPECT_EQ(std::count(profiles.begin(), profiles.end(), '\n'), 3);
    EXPECT_TRUE(isPrintable(home.run({"path", "a\x1b[2J\nb"}).err));

    // Paths in errors: of a JSON file, and of what a marker names.
    const std::string escape = "\x1b[2J\nfinto";
    home.environment["CLAUDE_LAUNCHER_DEFAULT_JSON"] = (home / escape).string();
    writeFile(home / escape, "{");
    const fs::path data = home / ".claude-profiles/.desktop-data";
    writeFile(data / escape / "Cookies", "");
    writeFile(data / ".live", escape);
    for (const std::vector<std::string>& arguments :
         {std::vector<std::string>{"create", "A", "--from", "default"}, {"restore-desktop"}}) {
        const Outcome outcome = home.run(arguments);
        EXPECT_EQ(outcome.status, 1) << outcome;
        EXPECT_TRUE(isPrintable(outcome.err)) << outcome;
        EXPECT_EQ(std::count(outcome.err.begin(), outcome.err.end(), '\n'), 1) << outcome;
    }
}

TEST_F(Hostile, SessionsStayInTheirFolders) {
    const fs::path records = home / "dati/claude-code-sessions/a/o";
    const std::string up = "../../../../../../../../" + victim.relative_path().string();
    writeFile(records / "local_1.json", R"({"sessionId": ")" + up + R"(/s", "cliSessionId": ")" + up +
                                            R"(/prezioso/file", "cwd": ")" + up + R"("})");
    writeFile(records / "local_2.json",
              R"({"sessionId": "/s2", "cliSessionId": "..", "priorCliSessionIds": ["../../b", "/etc/x"]})");
    writeFile(home / ".claude/projects/..a/...jsonl", "trascrizione");
    fs::create_directory_symlink(victim, home / ".claude/projects/fuori");
    home.output({"create", "Lavoro"});
    home.output({"create", "Altro"});
    fs::create_directories(home / ".claude-profiles/.desktop-data/altro/claude-code-sessions/b/p");
    home.run({"import-sessions", "default", "lavoro"});
    home.run({"import-sessions", "default", "altro"});
    for (const auto& entry : fs::recursive_directory_iterator(home.path())) {
        const std::string path = entry.path().lexically_relative(home.path()).string();
        EXPECT_TRUE(path.starts_with(".claude") || path.starts_with("dati") || path.starts_with("vittima") ||
                    path.starts_with(".local"))
            << path;
    }
}

TEST_F(Hostile, NothingIsMadeMoreReadableThanItWas) {
    const fs::path source = home / ".claude";
    writeFile(source / "skills/pdf/chiave", "segreto");
    writeFile(source / "settings.json", R"({"env": {"TOKEN": "segreto"}})");
    writeFile(home / ".claude.json", R"({"mcpServers": {"a": {"env": {"TOKEN": "segreto"}}}})");
    writeFile(home / "dati/config.json", "{}");
    writeFile(home / "dati/claude-code-sessions/a/o/local_1.json", R"({"sessionId": "s1", "title": "t"})");
    for (const fs::path& secret : {source / "skills/pdf", source / "skills/pdf/chiave",
                                   source / "settings.json", home / ".claude.json"})
        fs::permissions(secret, fs::is_directory(secret) ? fs::perms::owner_all : fs::perms(0600));
    const Outcome outcome = home.shell(R"(
        umask 0
        "$selvane" create Lavoro --from default --mode skills=separate &&
        "$selvane" import-sessions default lavoro && "$selvane" install-helper && "$selvane" sync lavoro &&
        "$selvane" backup "$HOME/b.zip" && "$selvane" set-mode lavoro skills=none
    )");
    EXPECT_EQ(outcome.status, 0) << outcome;
    EXPECT_EQ(fs::status(home / "b.zip").permissions(), fs::perms(0600));
    EXPECT_EQ(fs::status(home / ".claude-profiles").permissions(), fs::perms::owner_all);
    EXPECT_EQ(fs::status(profile).permissions(), fs::perms::owner_all);
    for (const auto& entry : fs::recursive_directory_iterator(home / ".claude-profiles")) {
        const std::string text = entry.is_regular_file() ? readFile(entry.path()) : "";
        if (text.find("segreto") == std::string::npos && text.find("sessionId") == std::string::npos)
            continue;
        EXPECT_EQ(entry.symlink_status().permissions(), fs::perms(0600)) << entry.path();
    }
    EXPECT_EQ(home.shell("umask 0777; \"$selvane\" create Chiuso --from default").status, 0);
    for (const auto& entry : fs::recursive_directory_iterator(home / ".claude-profiles/chiuso")) {
        const fs::perms own = entry.is_directory() ? fs::perms::owner_all : fs::perms(0600);
        EXPECT_TRUE(entry.is_symlink() || (entry.status().permissions() & own) == own) << entry.path();
    }
}

/// With `sudo`, or in a container.
TEST_F(Hostile, WhatRootDoesInTheHomeOfAUserStaysTheirs) {
    constexpr uid_t kNobody = 65534;
    if (geteuid() != 0)
        GTEST_SKIP() << "takes root";
    writeFile(home / ".claude/skills/pdf/SKILL.md", "testo");
    home.output({"create", "Lavoro", "--from", "default"});
    for (const std::string program : {"selvane", "libselvane-services.so", "libselvane-archives.so"})
        fs::copy_file(fs::path(SELVANE_EXECUTABLE).parent_path() / program, home / program);
    home.runUnprivileged({"list"}); // gives the user the whole home
    const Outcome outcome = home.shell(R"(
        selvane="$HOME/selvane"
        "$selvane" set-mode lavoro skills=separate && "$selvane" set-mode lavoro CLAUDE.md=none &&
        "$selvane" create Altro --from default && "$selvane" backup "$HOME/b.zip"
    )");
    EXPECT_EQ(outcome.status, 0) << outcome;
    for (const auto& entry : fs::recursive_directory_iterator(home.path())) {
        struct stat status {};
        ASSERT_EQ(lstat(entry.path().c_str(), &status), 0) << entry.path();
        EXPECT_EQ(status.st_uid, kNobody) << entry.path();
    }
}

} // namespace
} // namespace selvane::test
