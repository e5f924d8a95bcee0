// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include <gtest/gtest.h>

#include "support/Command.h"
#include "support/Home.h"

namespace selvane::test {
namespace {

namespace fs = std::filesystem;

/// Changes the permissions of a file or folder for its own lifetime.
class Closed {
public:
    Closed(fs::path path, fs::perms perms)
        : m_path(std::move(path)), m_before(fs::status(m_path).permissions()) {
        fs::permissions(m_path, perms);
    }
    Closed(const Closed&) = delete;
    Closed& operator=(const Closed&) = delete;
    ~Closed() { fs::permissions(m_path, m_before); }

private:
    fs::path m_path;
    fs::perms m_before;
};

TEST(CommandUnprivileged, WhatCannotBeReadIsLeftOutOrNamed) {
    CommandHome home;
    home.environment["CLAUDE_LAUNCHER_DESKTOP_DIR"] = (home / "dati").string();
    const fs::path secret = home / ".claude/skills/pdf/segreto";
    const fs::path records = home / "dati/claude-code-sessions/a/o";
    const fs::path state = home / ".claude.json";
    writeFile(secret, "x");
    writeFile(state, "{}");
    writeFile(records / "local_1.json", R"({"sessionId": "s1"})");
    writeFile(home / ".claude/CLAUDE.md", "regole");
    writeFile(home / ".claude/projects/p/c1.jsonl", "");
    fs::create_directories(home / ".claude/rules");
    home.output({"create", "Lavoro", "--from", "default"});
    home.output({"create", "Cliente", "--from", "default", "--isolated", "yes", "--mode", "rules=none"});
    const fs::path own = home / ".claude-profiles/lavoro";
    const auto denied = [](const fs::path& path) { return failure(path.string() + ": permesso negato"); };
    const struct {
        fs::path closed;
        std::vector<std::string> arguments;
        Outcome outcome;
    } cases[] = {
        {home / ".claude/skills", {"items", "default"}, {}},
        {records, {"sessions", "default"}, {}},
        {records / "local_1.json", {"sessions", "default"}, {}},
        {secret, {"create", "A", "--from", "default", "--mode", "skills=separate"}, denied(secret)},
        {secret, {"set-mode", "lavoro", "skills=separate"}, denied(secret)},
        {state, {"create", "A", "--from", "default"}, denied(state)},
        // Nobody knows what is there, so nothing is taken for empty or missing.
        {home / ".claude/skills",
         {"create", "A", "--from", "default", "--mode", "skills=separate"},
         denied(home / ".claude/skills")},
        {own / "skills", {"set-mode", "lavoro", "skills=none"}, denied(own / "skills")},
        {home / ".claude", {"sync", "lavoro"}, denied(home / ".claude/skills")},
        {home / ".claude/CLAUDE.md",
         {"set-mode", "lavoro", "CLAUDE.md=separate"},
         denied(home / ".claude/CLAUDE.md")},
        {own / "CLAUDE.md", {"set-mode", "lavoro", "CLAUDE.md=separate"}, denied(own / "CLAUDE.md")},
        // It may include the rules, so nobody knows what an isolated profile has to keep out.
        {home / ".claude/CLAUDE.md", {"sync", "cliente"}, denied(home / ".claude/CLAUDE.md")},
        {home / ".claude/rules", {"sync", "cliente"}, denied(home / ".claude/rules")},
        {records / "local_1.json",
         {"import-sessions", "default", "lavoro"},
         denied(records / "local_1.json")},
        {home / ".claude/projects/p",
         {"import-sessions", "default", "lavoro"},
         denied(home / ".claude/projects/p")},
    };
    const auto before = treeOf(home.path());
    for (const auto& [path, arguments, outcome] : cases) {
        {
            const Closed closed(path, fs::perms::none);
            EXPECT_EQ(home.runUnprivileged(arguments), outcome) << path;
        }
        EXPECT_EQ(treeOf(home.path()), before);
    }
    const fs::path marker = home / ".claude-profiles/.desktop-data/.live";
    writeFile(marker, "lavoro");
    writeFile(marker.parent_path() / "default/config.json", "{}");
    const auto swapped = treeOf(home.path());
    {
        const Closed closed(marker, fs::perms::none);
        EXPECT_EQ(home.runUnprivileged({"restore-desktop"}), denied(marker));
    }
    EXPECT_EQ(treeOf(home.path()), swapped);
    fs::remove_all(marker.parent_path());
    // zip itself silently skips an unreadable folder, and a profile behind a link that can't be followed.
    writeFile(home / "altrove/due/.launcher.json", "{}");
    fs::create_directory_symlink(home / "altrove/due", home / ".claude-profiles/due");
    for (const fs::path& path : {secret, secret.parent_path(), own, home / "altrove"}) {
        const Closed closed(path, fs::perms::none);
        const Outcome outcome = home.runUnprivileged({"backup", home / "b.zip"});
        EXPECT_TRUE(outcome.out.ends_with("\talcuni file non leggibili sono stati saltati\n"))
            << path << outcome;
        fs::remove(home / "b.zip");
    }
}

TEST(CommandUnprivileged, RefusedWritesLoseNothing) {
    CommandHome home;
    home.environment["CLAUDE_LAUNCHER_DESKTOP_DIR"] = (home / "dati").string();
    writeFile(home / ".claude/skills/pdf/SKILL.md", "x");
    writeFile(home / "b.zip", "precedente");
    home.output({"create", "Lavoro", "--from", "default"});
    home.output({"create", "Vuoto", "--from", "default", "--mode", "skills=none"});
    writeFile(home / ".claude/skills/nuova", "");
    const fs::path root = home / ".claude-profiles";
    const fs::path profile = root / "lavoro";
    const fs::path skills = profile / "skills";
    const struct {
        fs::path readOnly;
        std::vector<std::string> arguments;
        fs::path named;
    } cases[] = {
        {root, {"create", "A"}, root / "a"},
        {root, {"install-helper"}, root / "bin"},
        {root, {"restore-desktop"}, root / ".desktop-data"},
        {skills, {"set-mode", "lavoro", "skills=separate"}, skills / "pdf"},
        {skills, {"set-mode", "lavoro", "skills=none"}, skills / "pdf"},
        {skills, {"sync", "lavoro"}, skills / "nuova"},
        {root / "vuoto/skills", {"set-mode", "vuoto", "skills=shared"}, root / "vuoto/skills/nuova"},
        {profile, {"set-mode", "lavoro", "CLAUDE.md=shared"}, profile / "CLAUDE.md"},
        {home.path(), {"set-mode", "lavoro", "CLAUDE.md=none"}, profile / "CLAUDE.md"}, // has no Trash
        {home.path(), {"backup", home / "b.zip"}, {}},
    };
    const auto before = treeOf(home.path());
    for (const auto& [readOnly, arguments, named] : cases) {
        SCOPED_TRACE(arguments.back());
        const Closed closed(readOnly, fs::perms(0500));
        const Outcome outcome = home.runUnprivileged(arguments);
        EXPECT_EQ(outcome.status, 1);
        EXPECT_TRUE(outcome.err.starts_with("Errore: " + named.string())) << outcome;
        EXPECT_EQ(treeOf(home.path()), before);
    }
}

} // namespace
} // namespace selvane::test
