// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include <gtest/gtest.h>

#include "support/Command.h"
#include "support/Home.h"

namespace selvane::test {
namespace {

namespace fs = std::filesystem;

TEST(CommandSessions, AreListedAndCarriedToAnotherAccount) {
    CommandHome home;
    home.environment["CLAUDE_LAUNCHER_DESKTOP_DIR"] = (home / "dati").string();
    const fs::path records = home / "dati/claude-code-sessions/account/organizzazione";
    writeFile(records / "local_1.json",
              R"({"sessionId": "s1", "title": "Caffè\tlungo", "cwd": "/lavoro", "cliSessionId": "c1"})");
    writeFile(records / "local_2.json", R"({"sessionId": "s2", "lastActivityAt": 1760000000000})");
    writeFile(records / "local_3.json", R"({"sessionId": "s3", "isArchived": true})");
    writeFile(home / ".claude/projects/-lavoro/c1.jsonl", "trascrizione");
    const std::string second = "s2\tSenza titolo\t\tsolo voce\n";
    const std::string first = "s1\tCaffè\uFFFDlungo\t/lavoro\tconversazione presente\n";
    EXPECT_EQ(home.output({"sessions", "default"}), second + first);

    home.output({"create", "Lavoro"});
    EXPECT_EQ(home.output({"import-sessions", "default", "lavoro", "assente", "s1"}),
              "copiate 0, in attesa del prossimo avvio 1\n");
    const fs::path place = home / ".claude-profiles/.desktop-data/lavoro/claude-code-sessions/a/o";
    fs::create_directories(place);
    writeFile(place / "local_2.json", R"({"sessionId": "s2", "title": "Cambiata", "lastActivityAt": 1})");
    const std::string copied = "copiate 2, in attesa del prossimo avvio 0\n";
    EXPECT_EQ(home.output({"import-sessions", "default", "lavoro"}), copied);
    EXPECT_EQ(home.output({"sessions", "lavoro"}), "s2\tCambiata\t\tsolo voce\n" + first);
    EXPECT_EQ(home.output({"import-sessions", "default", "default"}), copied);
}

TEST(CommandSessions, ATerminalsConversationGoesThereAndBack) {
    CommandHome home;
    home.environment["CLAUDE_LAUNCHER_DESKTOP_DIR"] = (home / "dati").string();
    const fs::path here = home / ".claude/projects/-lavoro";
    const fs::path there = home / ".claude-profiles/altro/projects/-lavoro";
    home.output({"create", "Altro"});
    writeTree(here, {{"t1.jsonl", "uno\n"}, {"t1/subagents/a.jsonl", "a\n"}, {"t2.jsonl", "due\n"}});
    const std::string one = "copiate 1, in attesa del prossimo avvio 0\n";
    EXPECT_EQ(
        home.output({"import-sessions", "default", "altro", "t1", "t1", "assente", "-lavoro", "../p/t2"}),
        one);
    EXPECT_EQ(
        treeOf(there),
        (Tree{{"t1.jsonl", "uno\n"}, {"t1", "/"}, {"t1/subagents", "/"}, {"t1/subagents/a.jsonl", "a\n"}}));
    takeTrash();
    writeTree(there, {{"t1.jsonl", "uno\ndue\n"}, {"t1/subagents/a.jsonl", "A\n"}, {"t1/b", "b"}});
    EXPECT_EQ(home.output({"import-sessions", "altro", "default", "t1"}), one);
    EXPECT_EQ(treeOf(here), (Tree{{"t1.jsonl", "uno\ndue\n"},
                                  {"t1", "/"},
                                  {"t1/subagents", "/"},
                                  {"t1/subagents/a.jsonl", "a\n"},
                                  {"t1/b", "b"},
                                  {"t2.jsonl", "due\n"}}));
    EXPECT_EQ(takeTrash(), (Tree{{"t1.jsonl", "uno\n"}}));
    // Longer, but gone its own way; then shorter; then longer, but the other is newer.
    for (const char* own : {"uno\nquattro e cinque\n", "uno\n", "uno\ndue\ntre\n"}) {
        writeFile(here / "t1.jsonl", own);
        fs::last_write_time(here / "t1.jsonl", fs::file_time_type::clock::now() - std::chrono::hours(1));
        EXPECT_EQ(home.output({"import-sessions", "default", "altro", "t1"}), one);
        EXPECT_EQ(readFile(there / "t1.jsonl"), "uno\ndue\n") << own;
    }
    EXPECT_TRUE(takeTrash().empty());
}

} // namespace
} // namespace selvane::test
