// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

/// Several Selvanes working on the same files at once. Each test runs a few rounds; SELVANE_ROUNDS sets a
/// larger number.

#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <sstream>
#include <thread>

#include "platform/files/FileManager.h"
#include "store/ProfileRecord.h"
#include "support/Home.h"
#include "support/InstalledClaude.h"

namespace selvane::test {
namespace {

namespace fs = std::filesystem;

using Words = std::vector<std::string>;

int rounds() {
    const char* const wanted = std::getenv("SELVANE_ROUNDS");
    return wanted != nullptr ? std::stoi(wanted) : 3;
}

/// Runs all of these commands at the same time.
std::vector<Outcome> together(const CommandHome& home, const std::vector<Words>& commands) {
    std::vector<Outcome> outcomes(commands.size());
    std::vector<std::thread> threads;
    for (std::size_t i = 0; i < commands.size(); ++i)
        threads.emplace_back([&, i] { outcomes[i] = home.execute(commands[i]); });
    for (std::thread& thread : threads)
        thread.join();
    return outcomes;
}

void expectAllSucceeded(const std::vector<Words>& commands, const std::vector<Outcome>& outcomes) {
    for (std::size_t i = 0; i < commands.size(); ++i)
        EXPECT_EQ(outcomes[i].status, 0) << testing::PrintToString(commands[i]) << outcomes[i].err;
}

/// Reads the records over and over while others write them; none may ever be half-written.
class Watch {
public:
    explicit Watch(const fs::path& root) : m_root(root), m_thread([this] { look(); }) {}
    Watch(const Watch&) = delete;
    Watch& operator=(const Watch&) = delete;
    ~Watch() {
        m_isOver = true;
        m_thread.join();
        EXPECT_EQ(m_damaged, "");
        EXPECT_GT(m_seen, 0) << "records that were read";
    }

private:
    void look() {
        while (!m_isOver) {
            for (const std::string& id : m_files.entriesIfReadable(m_root))
                expectRecord(m_root / id / ".launcher.json");
            expectRecord(m_root / "default.json");
            const auto script = m_files.readIfPossible(m_root / "bin/claude-profile");
            if (script && !script->ends_with("exec claude \"$@\"\n"))
                m_damaged = *script;
        }
    }
    void expectRecord(const fs::path& file) {
        const auto content = m_files.readIfPossible(file);
        m_seen += content ? 1 : 0;
        if (content && !decodedProfileMeta(*content))
            m_damaged = file.string() + ": " + *content;
    }

    const FileManager m_files = {};
    const fs::path m_root;
    std::atomic<bool> m_isOver = false;
    int m_seen = 0;
    std::string m_damaged;
    std::thread m_thread;
};

void writeItems(const fs::path& claude, int round) {
    for (const std::string folder : {"skills", "agents", "commands", "output-styles", "rules"}) {
        for (int i = 0; i < 10; ++i)
            writeFile(claude / folder / (std::to_string(round) + "-" + std::to_string(i) + ".md"), folder);
    }
}

TEST(Concurrency, FileRenamedOverALinkBeingRemoved_Stays) {
    const TemporaryFolder folder;
    const FileManager files;
    int inTime = 0;
    for (int round = 0; round < rounds() * 300; ++round) {
        const fs::path link = folder / "elemento";
        files.write(folder / "nuovo", "mio");
        files.createLink("/altrove", link);
        std::atomic<int> waiting = 2;
        const auto start = [&] {
            for (--waiting; waiting > 0;)
                std::this_thread::yield();
        };
        std::thread other([&] {
            start();
            fs::rename(folder / "nuovo", link);
        });
        start();
        inTime += files.removeLink(link) ? 0 : 1;
        other.join();
        ASSERT_EQ(files.read(link), "mio") << "in round " << round;
        files.removeFile(link);
        ASSERT_EQ(files.entries(folder.path()), std::vector<std::string>());
    }
    EXPECT_GT(inTime, 0) << "rounds in which the file was there before the link was gone";
}

TEST(Concurrency, ProfilesOfOneName_EachGetAnIdAndAllItems) {
    const CommandHome home;
    writeItems(home / ".claude", 0);
    const std::vector<Words> commands(8, {"create", "Lavoro", "--from", "default"});
    std::set<std::string> ids;
    for (int round = 0; round < rounds(); ++round) {
        const Watch watch(home / ".claude-profiles");
        const auto outcomes = together(home, commands);
        expectAllSucceeded(commands, outcomes);
        for (const Outcome& outcome : outcomes)
            ids.insert(outcome.out);
    }
    const auto expected = commands.size() * static_cast<std::size_t>(rounds());
    EXPECT_EQ(ids.size(), expected);
    const std::string list = home.output({"list"});
    EXPECT_EQ(static_cast<std::size_t>(std::count(list.begin(), list.end(), '\n')), expected + 1);
    for (const std::string& line : ids) {
        const std::string items = home.output({"items", line.substr(0, line.size() - 1)});
        EXPECT_EQ(std::count(items.begin(), items.end(), '\n'), 50) << line;
    }
}

TEST(Concurrency, ChangesOfOneProfile_AllCount) {
    const CommandHome home;
    const fs::path profile = home / ".claude-profiles/lavoro";
    writeFile(home / ".claude/CLAUDE.md", "regole\n");
    writeFile(home / ".claude/settings.json", "{}");
    writeFile(home / ".config/Claude/claude-code-sessions/a/b/local_1.json", R"({"sessionId": "1"})");
    home.output({"create", "Lavoro", "--from", "default"});
    const Words collections = {"skills", "agents", "commands", "output-styles", "rules"};
    for (int round = 0; round < rounds(); ++round) {
        const Watch watch(home / ".claude-profiles");
        writeItems(home / ".claude", round);
        const bool isEven = round % 2 == 0;
        if (isEven) // a profile with its own copies doesn't get links made after this
            home.output({"sync", "lavoro"});
        std::vector<Words> commands = {
            {"set-mode", "lavoro", isEven ? "CLAUDE.md=separate" : "CLAUDE.md=extend"},
            {"set-mode", "lavoro", isEven ? "settings=none" : "settings=separate"},
            {"sync", "lavoro"},
            {"sync", "lavoro"},
            {"import-sessions", "default", "lavoro"},
            {"import-sessions", "default", "lavoro"},
            {"install-helper"},
            {"items", "lavoro"},
            {"list"}};
        for (const std::string& collection : collections)
            commands.push_back({"set-mode", "lavoro", collection + (isEven ? "=separate" : "=shared")});
        expectAllSucceeded(commands, together(home, commands));

        const auto meta = decodedProfileMeta(readFile(profile / ".launcher.json"));
        ASSERT_TRUE(meta);
        for (const std::string& collection : collections)
            EXPECT_EQ(meta->modes.at(collection), isEven ? ShareMode::separate : ShareMode::shared)
                << collection;
        EXPECT_EQ(meta->modes.at("CLAUDE.md"), isEven ? ShareMode::separate : ShareMode::extend);
        EXPECT_EQ(meta->modes.at("settings"), isEven ? ShareMode::none : ShareMode::separate);
        EXPECT_EQ(readFile(profile / ".pending-sessions/local_1.json"), "{\n  \"sessionId\": \"1\"\n}\n");
    }
    for (const std::string& collection : collections) {
        for (const auto& [name, content] : treeOf(home / ".claude" / collection))
            EXPECT_EQ(readFile(profile / collection / name), content) << collection << "/" << name;
    }
}

/// A window keeps what it has loaded until it reloads; commands change the same records meanwhile.
TEST(Concurrency, AWindowAndCommands_KeepEachOthersChanges) {
    const CommandHome home;
    writeItems(home / ".claude", 0);
    home.output({"create", "Lavoro", "--from", "default"});
    FakeWorkspace workspace;
    FakeClock clock;
    const ClaudeApp claude(workspace, clock, home.environment);
    ProfileStore window(home.environment, claude);
    for (int round = 0; round < rounds(); ++round) {
        const Profile shown = *window.profile("lavoro");
        const std::string mode = round % 2 == 0 ? "=none" : "=shared";
        const std::vector<Words> commands = {{"set-mode", "lavoro", "skills" + mode},
                                             {"set-mode", "lavoro", "agents" + mode},
                                             {"set-mode", "lavoro", "rules" + mode},
                                             {"sync", "lavoro"}};
        std::thread others([&] { expectAllSucceeded(commands, together(home, commands)); });
        std::string summary;
        for (int i = 0; i < 20; ++i) {
            summary = std::to_string(round) + "." + std::to_string(i);
            window.changeMeta(shown, [&](ProfileMeta& meta) { meta.summary = summary; });
            window.sync(shown);
        }
        others.join();
        const ProfileMeta meta = window.profile("lavoro")->meta;
        EXPECT_EQ(meta.summary, summary);
        for (const std::string component : {"skills", "agents", "rules"})
            EXPECT_EQ(rawValue(meta.modes.at(component)), mode.substr(1)) << component;
        EXPECT_EQ(treeOf(home / ".claude-profiles/lavoro/skills").size(), round % 2 == 0 ? 0U : 10U);
    }
}

class ConcurrentLaunch : public testing::Test, protected InstalledClaude {
protected:
    /// The configuration of each copy that is open in this folder.
    std::vector<std::string> openIn(const fs::path& data) const {
        std::istringstream output(home.output({"desktop-status"}));
        std::vector<std::string> configurations;
        const std::string mark = "\tdati=" + data.string() + "\tconfig=";
        for (std::string line; std::getline(output, line);) {
            const std::size_t place = line.find(mark);
            if (line.starts_with("aperto pid=") && place != line.npos)
                configurations.push_back(line.substr(place + mark.size()));
        }
        return configurations;
    }
};

TEST_F(ConcurrentLaunch, OfOneAccount_OpensOneCopyAndSaysSo) {
    home.output({"create", "Lavoro"});
    home.output({"create", "Ospite", "--account", "lavoro"});
    home.output({"create", "Terzo", "--account", "lavoro"});
    const std::vector<Words> commands = {
        {"launch", "lavoro"}, {"launch", "ospite"}, {"launch", "terzo"}, {"launch", "lavoro"}};
    for (int round = 0; round < rounds(); ++round) {
        fs::remove(lavoroData / "stand-in.json");
        const auto outcomes = together(home, commands);
        const Json report = opened(lavoroData);
        const std::vector<std::string> open = openIn(lavoroData);
        ASSERT_EQ(open.size(), 1U);
        EXPECT_EQ(report["claudeConfigDir"], open.front());
        for (std::size_t i = 0; i < commands.size(); ++i) {
            // The next launch may end a copy that has only just been opened.
            EXPECT_TRUE(outcomes[i].status == 0 ||
                        outcomes[i].err.ends_with("è già aperto in Claude: chiudilo prima.\n") ||
                        outcomes[i].err.ends_with(": riprova quando ha finito\n") ||
                        outcomes[i].err.ends_with("si è chiuso subito dopo l'avvio (stato 143)\n"))
                << outcomes[i];
        }
        EXPECT_EQ(fs::path(open.front()).filename(), readFile(home / ".claude-profiles/.active"));
        quit(report);
        waitUntil([&] { return pids().empty(); });
    }
}

} // namespace
} // namespace selvane::test
