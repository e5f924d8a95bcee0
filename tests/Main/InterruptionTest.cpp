// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

/// Programs that stop, end or change things at the wrong moment.

#include <csignal>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>
#include <utility>

#include "platform/files/FolderLock.h"
#include "platform/json/Json.h"
#include "support/Command.h"
#include "support/Home.h"

namespace selvane::test {
namespace {

namespace fs = std::filesystem;

TEST(Interrupted, CreateLeavesNothingOrMakesWay) {
    const CommandHome home;
    const fs::path root = home / ".claude-profiles";
    fs::create_directories(root);
    for (int i = 0; i < 4000; ++i)
        writeFile(home / ".claude/skills/tanti" / std::to_string(i), "x");
    const auto interrupted = [&](const std::string& signal) {
        return home.shell(R"(
            "$selvane" create Lavoro --from default --mode skills=separate &
            cd "$HOME/.claude-profiles"
            until [ -e lavoro/.selvane-*/tanti ] || [ -e lavoro/.launcher.json ]; do :; done
            kill -)" + signal +
                          " $!; wait $!");
    };
    for (const std::string name : {"TERM", "HUP"}) {
        const Outcome outcome = interrupted(name);
        EXPECT_GT(outcome.status, 128) << name;
        EXPECT_EQ(outcome.out, "") << name;
        EXPECT_EQ(outcome.err.find("Errore"), std::string::npos) << outcome;
        EXPECT_EQ(treeOf(root), Tree{}) << name;
    }
    EXPECT_EQ(interrupted("KILL").status, 128 + SIGKILL);
    EXPECT_EQ(home.output({"list"}).find("lavoro"), std::string::npos);
    ASSERT_TRUE(fs::exists(root / "lavoro"));
    EXPECT_EQ(home.output({"create", "Lavoro"}), "lavoro\n");
    EXPECT_EQ(treeOf(root / "lavoro/skills"), Tree{});
    fs::create_directories(root / "vuoto"); // killed even earlier
    writeFile(root / "altrui/file", "x");
    EXPECT_EQ(home.output({"create", "Vuoto"}), "vuoto\n");
    EXPECT_EQ(home.output({"create", "Altrui"}), "altrui-2\n");
    for (const auto& [name, content] : treeOf(root))
        EXPECT_EQ(name.find(".selvane-"), std::string::npos) << name;
}

TEST(Interrupted, AStoppedHolderIsNamedByWhateverWaits) {
    const CommandHome home;
    const fs::path profile = home / ".claude-profiles/lavoro";
    home.output({"create", "Lavoro", "--from", "default"});
    const auto before = treeOf(home.path());
    const pid_t holder = fork();
    if (holder == 0) {
        const FolderLock lock(profile);
        raise(SIGSTOP);
        _exit(0);
    }
    int status = 0;
    waitpid(holder, &status, WUNTRACED);
    const std::vector<std::vector<std::string>> commands = {{"sync", "lavoro"},
                                                            {"set-mode", "lavoro", "skills=none"},
                                                            {"set-mode", "lavoro", "mcp=none"},
                                                            {"import-sessions", "default", "lavoro"}};
    const auto usual = std::exchange(FolderLock::usualPatience, std::chrono::milliseconds(50));
    for (const auto& command : commands) {
        const Outcome outcome = home.run(command);
        EXPECT_EQ(outcome.status, 1);
        EXPECT_NE(outcome.err.find("(processo " + std::to_string(holder) + ", fermo)"), std::string::npos)
            << outcome;
    }
    FolderLock::usualPatience = usual;
    EXPECT_EQ(treeOf(home.path()), before);
    kill(holder, SIGKILL);
    waitpid(holder, &status, 0);
    EXPECT_EQ(home.run({"sync", "lavoro"}).status, 0);
}

/// Writes a counter into Claude Code's state every few milliseconds, as Claude Code does: replacing the file
/// whole, and keeping what others have put there.
class FakeClaude {
public:
    explicit FakeClaude(fs::path state) : m_state(std::move(state)), m_thread([this] { keepWriting(); }) {}
    FakeClaude(const FakeClaude&) = delete;
    FakeClaude& operator=(const FakeClaude&) = delete;
    ~FakeClaude() {
        m_isOver = true;
        m_thread.join();
        EXPECT_EQ(m_lost, 0) << "of " << m_count << " updates";
        EXPECT_GT(m_count, 0);
    }

private:
    void keepWriting() {
        const FileManager files;
        for (; !m_isOver; ++m_count) {
            Json state = json::parse(files.read(m_state), m_state);
            m_lost += m_count > 0 && state["count"] != m_count - 1 ? 1 : 0;
            state["count"] = m_count;
            const fs::path next = m_state.string() + ".next";
            files.write(next, json::serialized(state));
            fs::rename(next, m_state);
            std::this_thread::sleep_for(std::chrono::milliseconds(5));
        }
    }

    fs::path m_state;
    std::atomic<bool> m_isOver = false;
    int m_count = 0;
    int m_lost = 0;
    std::thread m_thread;
};

TEST(Interrupted, UpdatesOfARunningClaudeAreKept) {
    Home home;
    const Profile profile = home.make("Lavoro", {{Component::mcp, ShareMode::none}});
    const fs::path state = profile.configDir / ".claude.json";
    writeFile(state, R"({"mcpServers": {}})");
    {
        const FakeClaude claude(state);
        const char* const wanted = std::getenv("SELVANE_ROUNDS");
        const int imports = 20 * (wanted != nullptr ? std::stoi(wanted) : 3);
        for (int i = 0; i < imports; ++i) {
            writeFile(home / ".claude.json", R"({"mcpServers": {"a)" + std::to_string(i) + R"(": {}}})");
            home.store.reimport(Component::mcp, profile, home.builtIn());
        }
    }
    EXPECT_TRUE(json::parse(readFile(state), state)["mcpServers"].is_object());
}

} // namespace
} // namespace selvane::test
