// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include <csignal>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include "support/Command.h"
#include "support/Home.h"

namespace selvane::test {
namespace {

namespace fs = std::filesystem;

const std::string kNested(10'000'000, '[');

TEST(CommandBadInput, PlacesThatAreNoFolders) {
    CommandHome home;
    const std::string root = (home / ".claude-profiles").string();
    writeFile(root, "non è una cartella");
    writeFile(home / ".claude/skills/pdf", "");
    const auto before = treeOf(home.path());
    for (const std::vector<std::string>& arguments :
         {std::vector<std::string>{"create", "A", "--from", "default"},
          {"install-helper"},
          {"restore-desktop"}}) {
        const Outcome outcome = home.run(arguments);
        EXPECT_EQ(outcome.status, 1);
        EXPECT_TRUE(outcome.err.starts_with("Errore: " + root)) << outcome;
        EXPECT_TRUE(outcome.err.ends_with(": non è una cartella\n")) << outcome;
    }
    EXPECT_EQ(home.output({"items", "default"}), "skills\tpdf\town\n");
    EXPECT_EQ(home.output({"sessions", "default"}), "");
    EXPECT_EQ(treeOf(home.path()), before);

    home.environment["HOME"] = "/proc/assente";
    EXPECT_EQ(home.output({"path", "default"}), "/proc/assente/.claude\n");
    EXPECT_EQ(home.run({"create", "Lavoro"}),
              failure("/proc/assente/.claude-profiles: il file o la cartella non esiste"));
    EXPECT_EQ(home.run({"backup", home / "b.zip"}), failure("Non c'è niente da salvare"));
}

TEST(CommandBadInput, AccountsNeverLeadOutOfTheirFolder) {
    CommandHome home;
    const fs::path data = home / ".claude-profiles/.desktop-data";
    writeFile(home / "dati/config.json", "{}");
    writeFile(home / "vittima/config.json", "{}");
    home.environment["CLAUDE_LAUNCHER_DESKTOP_DIR"] = (home / "dati").string();
    home.output({"create", "Lavoro"});
    auto before = treeOf(home.path());
    for (const std::string account : {"../../vittima", "a/b", "..", ".", "", "/etc", ".live"}) {
        EXPECT_EQ(home.run({"create", "A", "--account", account}), failure("Account non valido: " + account));
        EXPECT_EQ(treeOf(home.path()), before) << account;
    }

    const std::string victim = "../../vittima";
    const Outcome refused = failure("Account non valido: " + victim);
    writeFile(home / ".claude-profiles/rotto/.launcher.json",
              R"({"name": "Rotto", "account": "../../vittima"})");
    before = treeOf(home.path());
    for (const std::vector<std::string>& arguments : {std::vector<std::string>{"sessions", "rotto"},
                                                      {"import-sessions", "default", "rotto"},
                                                      {"import-sessions", "rotto", "default"},
                                                      {"launch", "rotto"}})
        EXPECT_EQ(home.run(arguments), refused) << arguments[0];
    const Outcome status = home.run({"desktop-status"});
    EXPECT_EQ(status.status, 1);
    EXPECT_EQ(status.err, refused.err);
    EXPECT_EQ(status.out,
              "cartella normale: default\ndefault\taccount=default\tdati=" + (home / "dati").string() +
                  "\nlavoro\taccount=lavoro\tdati=nessuno (login al primo avvio)\n");
    EXPECT_EQ(treeOf(home.path()), before);

    writeFile(data / ".live", victim + "\n");
    before = treeOf(home.path());
    EXPECT_EQ(home.run({"restore-desktop"}), refused);
    EXPECT_EQ(treeOf(home.path()), before);
}

TEST(CommandBadInput, DamagedRecordsAreLeftOutAndKept) {
    CommandHome home;
    home.environment["CLAUDE_LAUNCHER_DESKTOP_DIR"] = (home / "dati").string();
    const fs::path root = home / ".claude-profiles";
    const fs::path sessions = home / "dati/claude-code-sessions/a/o";
    const std::string listed = home.output({"list"});
    writeFile(root / "a/.launcher.json", kNested);
    writeFile(root / "b/.launcher.json", "{}");
    writeFile(root / "c/.launcher.json/cartella", "");
    fs::create_directories(root / "d");
    ASSERT_EQ(mkfifo((root / "d/.launcher.json").c_str(), 0600), 0);
    writeFile(root / "default.json", kNested);
    writeFile(sessions / "local_1.json", kNested);
    writeFile(sessions / "local_2.json", R"({"sessionId": )" + kNested);
    ASSERT_EQ(mkfifo((sessions / "local_3.json").c_str(), 0600), 0);
    EXPECT_EQ(home.output({"list"}), listed);
    EXPECT_EQ(home.output({"sessions", "default"}), "");
    EXPECT_EQ(home.run({"sync", "b"}), failure("Profilo sconosciuto: b"));
    EXPECT_EQ(home.output({"create", "B"}), "b-2\n");
    EXPECT_EQ(readFile(root / "b/.launcher.json"), "{}");
}

TEST(CommandBadInput, GlobalStateThatCannotBeReadIsNamedAndKept) {
    const CommandHome home;
    const fs::path state = home / ".claude.json";
    home.output({"list"});
    const std::map<std::string, std::string> cases = {
        {kNested, "JSON annidato troppo in profondità"},
        {"{\"mcpServers\": ", "JSON non valido (riga 1, colonna 16)"},
    };
    for (const auto& [text, reason] : cases) {
        writeFile(state, text);
        const auto before = treeOf(home.path());
        EXPECT_EQ(home.run({"create", "A", "--from", "default"}), failure(state.string() + ": " + reason));
        EXPECT_TRUE(treeOf(home.path()) == before) << reason;
    }
}

TEST(CommandBadInput, FifosAndSocketsAmongItemsAreTakenAsTheyAre) {
    const CommandHome home;
    const fs::path skills = home / ".claude/skills";
    writeFile(skills / "pdf/SKILL.md", "testo");
    ASSERT_EQ(mkfifo((skills / "pdf/fifo").c_str(), 0640), 0);
    ASSERT_EQ(mkfifo((skills / "fifo").c_str(), 0600), 0);
    ASSERT_EQ(mknod((skills / "pdf/socket").c_str(), S_IFSOCK | 0600, 0), 0);
    ASSERT_EQ(mkfifo((home / ".claude/CLAUDE.md").c_str(), 0600), 0);
    home.output({"create", "Copia", "--from", "default", "--mode", "skills=separate"});
    const fs::path copy = home / ".claude-profiles/copia/skills";
    EXPECT_TRUE(fs::is_fifo(copy / "fifo"));
    EXPECT_TRUE(fs::is_fifo(copy / "pdf/fifo"));
    EXPECT_TRUE(fs::is_socket(copy / "pdf/socket"));
    EXPECT_EQ(readFile(copy / "pdf/SKILL.md"), "testo");
    for (const std::string mode : {"shared", "separate", "none"})
        EXPECT_EQ(home.run({"set-mode", "copia", "CLAUDE.md=" + mode}).status, 0) << mode;
    EXPECT_EQ(home.run({"backup", home / "b.zip"}).status, 0);
}

TEST(CommandBadInput, OutputThatNobodyTakes) {
    const CommandHome home;
    writeFile(home / ".claude/skills/pdf", "");
    const std::string noReader =
        "/usr/bin/mkfifo \"$HOME/p$$\"; exec 3<>\"$HOME/p$$\" 4>\"$HOME/p$$\" 3>&-\n";
    const struct {
        std::string script;
        Outcome outcome;
    } cases[] = {
        {"\"$selvane\" list >/dev/full", failure("uscita standard: spazio sul disco esaurito")},
        {"\"$selvane\" list >&-", {}},
        {"\"$selvane\" path assente 2>&-", {1, "", ""}},
        {"\"$selvane\" path assente 2>/dev/full", {1, "", ""}},
        {"\"$selvane\" create Chiuso --from default <&- >&- 2>&-", {}},
        // A pipe whose reader is gone: with the usual signal, and with the signal ignored.
        {noReader + "\"$selvane\" list >&4", {128 + SIGPIPE, "", ""}},
        {noReader + "trap '' PIPE; \"$selvane\" list >&4", {}},
    };
    for (const auto& [script, outcome] : cases)
        EXPECT_EQ(home.shell(script), outcome) << script;
    EXPECT_EQ(home.output({"items", "chiuso"}),
              "skills\tpdf\tlink -> " + (home / ".claude/skills/pdf").string() + "\n");
}

} // namespace
} // namespace selvane::test
