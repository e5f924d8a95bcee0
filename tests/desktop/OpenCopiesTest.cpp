// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "desktop/OpenCopies.h"

#include <gtest/gtest.h>

#include <map>

#include "desktop/AgentProcess.h"
#include "support/TemporaryFolder.h"

namespace selvane {
namespace {

const std::string kApp = "/opt/claude/claude-desktop";
const std::string kNormal = "/home/a/.config/Claude";
const std::string kLavoro = "/home/a/i miei/.desktop-data/lavoro";
const std::string kLavoro2 = "/home/a/i miei/.desktop-data/lavoro 2";
const std::string kConfig = "/home/a/i miei/lavoro";
const std::string kSwitch = " --user-data-dir=";

using Environment = std::map<std::string, std::string>;

/// The machine in a test. Process 100, started at 1000, is the main one.
struct Machine {
    DataFolders folders{kNormal, "/home/a/i miei/.desktop-data", {"lavoro", "lavoro 2"}};
    std::vector<ProcInfo> processes;
    std::vector<RunningApplication> recognised;
    std::vector<LaunchNote> notes;
    std::vector<DataFolderLock> locks;
    std::map<std::int32_t, std::vector<std::string>> files; ///< open for writing
    std::map<std::int32_t, std::vector<std::string>> filesRead;

    ProcInfo& add(std::int32_t pid, std::int32_t ppid, const std::string& path,
                  std::vector<std::string> args = {}, Environment env = {}) {
        ProcInfo process;
        process.pid = pid;
        process.ppid = ppid;
        process.session = pid;
        process.startTime = static_cast<std::uint64_t>(pid) * 10;
        process.path = path;
        process.args = std::move(args);
        process.env = std::move(env);
        return processes.emplace_back(std::move(process));
    }
    /// A main process as it looks on a desktop: joined arguments and no environment.
    ProcInfo& addMain(const std::string& arguments, std::int32_t pid = 100) {
        recognised.push_back({pid, static_cast<std::uint64_t>(pid) * 10});
        return add(pid, 1, kApp, {kApp + arguments});
    }
    void addLock(const std::string& folder, std::int32_t pid, const std::string& host = "qui",
                 std::uint64_t madeBefore = 1'000'000) {
        locks.push_back({folder, host, pid, madeBefore});
    }
    void addNote(std::int32_t pid, const std::string& dataDir, std::optional<std::string> config,
                 std::int32_t session) {
        notes.push_back(
            {{{pid, static_cast<std::uint64_t>(pid) * 10}, session}, "x", dataDir, std::move(config)});
    }

    CopyEvidence evidence() const {
        const auto openFiles = [this](std::int32_t pid, FileUse use) {
            std::vector<std::string> open;
            for (const auto* each : {&files, &filesRead}) {
                const auto found = each->find(pid);
                if (found != each->end() && (use == FileUse::any || each == &files))
                    open.insert(open.end(), found->second.begin(), found->second.end());
            }
            return open;
        };
        return {processes, recognised, notes, locks, "qui", folders, openFiles};
    }
    /// "PID FOLDER CONFIG" for each copy: "-" if it has no configuration of its own, "?" if that is unknown.
    std::vector<std::string> copies() const {
        std::vector<std::string> result;
        for (const OpenCopy& copy : openCopies(evidence())) {
            const std::string config = copy.isConfigKnown ? copy.config.value_or("-") : "?";
            result.push_back(std::to_string(copy.pid()) + " " + (copy.dataDir.empty() ? "?" : copy.dataDir) +
                             " " + config);
        }
        return result;
    }
};

using Copies = std::vector<std::string>;
using Change = std::function<void(Machine&)>;

struct Case {
    const char* name;
    Change change;
    Copies expected;
};

void expectEach(const std::vector<Case>& cases) {
    for (const auto& [name, change, expected] : cases) {
        Machine machine;
        change(machine);
        EXPECT_EQ(machine.copies(), expected) << name;
    }
}

std::string copy(const std::string& folder, const std::string& config, std::int32_t pid = 100) {
    return std::to_string(pid) + " " + folder + " " + config;
}

const auto kAddChild = [](Machine& machine, Environment env) {
    machine.add(200, 100, "/usr/bin/python3", {"python3"}, std::move(env));
};
const auto kAddHandler = [](Machine& machine, const std::string& database, Environment env) {
    machine.add(150, 1, "/opt/claude/chrome_crashpad_handler", {"handler", "--database=" + database},
                std::move(env));
};

TEST(OpenCopies, EachKindOfEvidence_Alone_TellsTheDataFolder) {
    expectEach({
        {"note",
         [](Machine& m) { m.addMain("").args.clear(), m.addNote(100, kLavoro, kConfig, 100); },
         {copy(kLavoro, kConfig)}},
        {"note without sessions",
         [](Machine& m) { m.addMain("").args.clear(), m.addNote(100, kLavoro, kConfig, 0); },
         {copy(kLavoro, kConfig)}},
        {"lock",
         [](Machine& m) { m.addMain("").args.clear(), m.addLock(kLavoro, 100); },
         {copy(kLavoro, "?")}},
        {"lock of an unknown program",
         [](Machine& m) { m.add(100, 1, "/usr/lib/other/other"), m.addLock(kLavoro2, 100); },
         {copy(kLavoro2, "?")}},
        {"open files",
         [](Machine& m) { m.addMain("").args.clear(), m.files[100] = {kLavoro + "/db/LOG"}; },
         {copy(kLavoro, "?")}},
        {"open files of a helper",
         [](Machine& m) {
             m.addMain("").args.clear();
             m.add(200, 100, kApp, {kApp + " --type=utility"});
             m.files[200] = {"/dev/null", kLavoro2 + "/db/LOG"};
         },
         {copy(kLavoro2, "?")}},
        {"separate arguments",
         [](Machine& m) {
             m.addMain("").args = {kApp, "--user-data-dir=/altrove/./x/", "--user-data-dir=" + kLavoro};
         },
         {copy("/altrove/x", "?")}},
        {"joined arguments",
         [](Machine& m) { m.addMain(" --a=b" + kSwitch + kLavoro + " --c"); },
         {copy(kLavoro, "?")}},
        {"joined, a longer name", [](Machine& m) { m.addMain(kSwitch + kLavoro2); }, {copy(kLavoro2, "?")}},
        {"joined, a slash", [](Machine& m) { m.addMain(kSwitch + kLavoro2 + "/ x"); }, {copy(kLavoro2, "?")}},
        {"no argument", [](Machine& m) { m.addMain(" --a=b"); }, {copy(kNormal, "?")}},
        {"no argument, only devices open",
         [](Machine& m) { m.addMain(""), m.files[100] = {"/dev/null"}; },
         {copy(kNormal, "?")}},
        {"no argument, files of another home in memory",
         [](Machine& m) {
             m.addMain(""), m.files[100] = {"/dev/null", "/dev/shm/b/.config/Claude/main.log"};
         },
         {copy("?", "?")}},
        {"no argument, another home",
         [](Machine& m) {
             m.addMain("").env = {{"HOME", "/home/b"}};
         },
         {copy("/home/b/.config/Claude", "-")}},
        {"no argument, another home of a descendant",
         [](Machine& m) {
             m.addMain(""), kAddChild(m, {{"HOME", "/home/b"}, {"DISPLAY", ":0"}});
         },
         {copy("/home/b/.config/Claude", "-")}},
        {"joined, an unknown folder",
         [](Machine& m) { m.addMain(kSwitch + kLavoro + "3"); },
         {copy("?", "?")}},
        {"nothing", [](Machine& m) { m.addMain("").args.clear(); }, {copy("?", "?")}},
    });
}

TEST(OpenCopies, EachKindOfEvidence_Alone_TellsTheConfiguration) {
    const Environment own = {{"CLAUDE_CONFIG_DIR", kConfig + "/"}}, none = {{"PATH", "/bin"}};
    const auto lavoro = [](Machine& m) -> ProcInfo& { return m.addMain(kSwitch + kLavoro); };
    expectEach({
        {"own environment", [&](Machine& m) { lavoro(m).env = own; }, {copy(kLavoro, kConfig)}},
        {"own environment without it", [&](Machine& m) { lavoro(m).env = none; }, {copy(kLavoro, "-")}},
        {"a piece of the title",
         [&](Machine& m) {
             lavoro(m).env = {{"sandbox", "1"}};
         },
         {copy(kLavoro, "?")}},
        {"crash handler, found by its database",
         [&](Machine& m) { lavoro(m), kAddHandler(m, kLavoro + "/Crashpad", own); },
         {copy(kLavoro, kConfig)}},
        {"crash handler without it",
         [&](Machine& m) { lavoro(m), kAddHandler(m, kLavoro + "/Crashpad", none); },
         {copy(kLavoro, "-")}},
        {"crash handler of another copy",
         [&](Machine& m) { lavoro(m), kAddHandler(m, kLavoro2 + "/Crashpad", own); },
         {copy(kLavoro, "?")}},
        {"crash handler, found by the start",
         [&](Machine& m) {
             Environment started = own;
             started["GIO_LAUNCHED_DESKTOP_FILE_PID"] = "100";
             lavoro(m), kAddHandler(m, "/home/a/Crash Reports", started);
         },
         {copy(kLavoro, kConfig)}},
        {"note over a descendant",
         [&](Machine& m) {
             lavoro(m), m.addNote(100, kLavoro, kConfig, 100);
             kAddChild(m, {{"CLAUDE_CONFIG_DIR", "/altrove"}});
         },
         {copy(kLavoro, kConfig)}},
        {"environment over the note",
         [&](Machine& m) { lavoro(m).env = none, m.addNote(100, kLavoro, kConfig, 100); },
         {copy(kLavoro, "-")}},
        {"crash handler, named by a helper",
         [&](Machine& m) {
             lavoro(m), kAddHandler(m, "/home/a/Crash Reports", own);
             m.add(200, 100, kApp, {kApp + " --type=renderer --crashpad-handler-pid=150 --lang=it"});
         },
         {copy(kLavoro, kConfig)}},
        {"crash handler that started right after",
         [&](Machine& m) { lavoro(m), m.add(110, 1, "/opt/claude/chrome_crashpad_handler", {}, own); },
         {copy(kLavoro, kConfig)}},
        {"the same, but another copy started with it",
         [&](Machine& m) {
             lavoro(m), m.addMain(kSwitch + kLavoro2, 105);
             m.add(110, 1, "/opt/claude/chrome_crashpad_handler", {}, own);
         },
         {copy(kLavoro, "?"), copy(kLavoro2, "?", 105)}},
        {"descendant", [&](Machine& m) { lavoro(m), kAddChild(m, own); }, {copy(kLavoro, kConfig)}},
        {"descendant with the whole session, but without it",
         [&](Machine& m) {
             lavoro(m), kAddChild(m, {{"DISPLAY", ":0"}});
         },
         {copy(kLavoro, "-")}},
        {"descendant with few variables",
         [&](Machine& m) { lavoro(m), kAddChild(m, none); },
         {copy(kLavoro, "?")}},
    });
}

TEST(OpenCopies, EvidenceThatLies_IsNotBelieved) {
    expectEach({
        {"lock of a process that is gone", [](Machine& m) { m.addLock(kLavoro, 100); }, {}},
        {"lock of a reused pid",
         [](Machine& m) { m.add(100, 1, "/usr/bin/gimp"), m.addLock(kLavoro, 100, "qui", 999); },
         {}},
        {"the same, but the files are open: the clock was set",
         [](Machine& m) {
             m.add(100, 1, "/usr/bin/gimp"), m.addLock(kLavoro, 100, "qui", 999);
             m.files[100] = {kLavoro + "/x"};
         },
         {copy(kLavoro, "?")}},
        {"the same, but the files are only read",
         [](Machine& m) {
             m.add(100, 1, "/usr/bin/tail", {"tail", "-f", "main.log"});
             m.addLock(kLavoro, 100, "qui", 999), m.filesRead[100] = {kLavoro + "/main.log"};
         },
         {}},
        {"lock of another host",
         [](Machine& m) { m.add(100, 1, "/usr/bin/gimp"), m.addLock(kLavoro, 100, "li"); },
         {}},
        {"lock of a helper",
         [](Machine& m) { m.add(100, 1, kApp, {kApp + " --type=renderer"}), m.addLock(kLavoro, 100); },
         {}},
        {"lock of a reused pid against arguments",
         [](Machine& m) { m.addMain(kSwitch + kLavoro2), m.addLock(kLavoro, 100, "qui", 999); },
         {copy(kLavoro2, "?")}},
        {"note of a reused session",
         [](Machine& m) {
             m.addMain(kSwitch + kLavoro2);
             m.notes = {{{{100, 7}, 100}, "x", kLavoro, kConfig}};
         },
         {copy(kLavoro2, "?")}},
        {"note against the lock, the files decide",
         [](Machine& m) {
             m.addMain(""), m.addNote(100, kLavoro, kConfig, 100), m.addLock(kNormal, 100);
             m.files[100] = {kNormal + "/db"};
         },
         {copy(kNormal, "?")}},
        {"note against the lock, no files",
         [](Machine& m) {
             m.addMain("").args.clear();
             m.addNote(100, kLavoro, kConfig, 100), m.addLock(kNormal, 100);
         },
         {copy(kNormal, "?")}},
        {"a program that names a data folder",
         [](Machine& m) {
             m.add(100, 1, "/usr/bin/tail", {"tail", "-f", kLavoro + "/main.log"});
         },
         {}},
        {"no argument, but its files lie elsewhere",
         [](Machine& m) { m.addMain(""), m.filesRead[100] = {"/home/b/.config/Claude/x"}; },
         {copy("?", "?")}},
        {"a second start, about to hand over",
         [](Machine& m) {
             m.addMain(kSwitch + kLavoro), m.addMain(kSwitch + kLavoro, 110), m.addLock(kLavoro, 100);
         },
         {copy(kLavoro, "?")}},
        {"no argument, but the normal folder is another copy's",
         [](Machine& m) { m.addMain(""), m.addMain("", 110), m.addLock(kNormal, 110); },
         {copy("?", "?"), copy(kNormal, "?", 110)}},
    });
}

TEST(OpenCopies, Wrappers_AreSeenThrough) {
    const std::string electron = "/usr/lib/electron/electron";
    const auto inSession = [](ProcInfo& process, std::int32_t session) { process.session = session; };
    expectEach({
        {"a shell that waits",
         [&](Machine& m) {
             m.add(90, 1, "/usr/bin/dash", {"sh", "claude-desktop"});
             inSession(m.add(100, 90, electron, {electron + kSwitch + kLavoro}), 90);
             inSession(m.add(101, 100, electron, {electron + " --type=zygote"}), 90);
             m.addNote(90, kLavoro, kConfig, 90);
             m.files[100] = {kLavoro + "/db/LOG"};
         },
         {copy(kLavoro, kConfig)}},
        {"a shell that has ended",
         [&](Machine& m) {
             inSession(m.add(100, 1, electron, {}), 90);
             m.addNote(90, kLavoro, kConfig, 90);
             m.files[100] = {kLavoro + "/db/LOG"};
         },
         {copy(kLavoro, kConfig)}},
        {"something that has outlived the copy which started it",
         [&](Machine& m) {
             inSession(m.add(100, 1, "/usr/lib/postgresql/postgres", {"postgres"}), 90);
             m.addNote(90, kLavoro, kConfig, 90);
             m.files[100] = {"/home/a/progetto/base"};
             inSession(m.add(101, 1, "/usr/bin/tail", {"tail"}), 90);
             m.filesRead[101] = {kLavoro + "/main.log"};
         },
         {}},
        {"a program that waits and is taken for the application",
         [&](Machine& m) {
             m.addMain(kSwitch + kLavoro, 90);
             inSession(m.add(100, 90, electron, {}), 90);
             m.addLock(kLavoro, 100), m.addNote(90, kLavoro, kConfig, 90);
         },
         {copy(kLavoro, kConfig)}},
        {"the same in the normal folder",
         [&](Machine& m) { m.addMain("", 90), m.add(100, 90, electron, {}), m.addLock(kNormal, 100); },
         {copy(kNormal, "?")}},
        {"another copy of the executable that a lock shows",
         [&](Machine& m) {
             m.add(100, 1, electron, {}), m.addLock(kNormal, 100);
             m.add(110, 1, electron, {electron + kSwitch + kLavoro});
             m.add(120, 1, electron, {electron, "/usr/lib/another-application"});
             m.add(130, 1, electron, {electron, "--user-data-dir=/home/a/.config/another"});
             m.add(140, 1, electron, {}), m.files[140] = {kLavoro2 + "/x"};
         },
         {copy(kNormal, "?"), copy(kLavoro, "?", 110), copy(kLavoro2, "?", 140)}},
        {"a copy that was started from within another",
         [&](Machine& m) {
             m.addMain(kSwitch + kLavoro), m.addLock(kLavoro, 100), m.addNote(100, kLavoro, kConfig, 100);
             inSession(m.add(200, 100, "/usr/bin/bash", {"bash"}), 100);
             inSession(m.add(210, 200, kApp, {kApp + kSwitch + kLavoro2}), 100);
             m.addLock(kLavoro2, 210);
         },
         {copy(kLavoro, kConfig), copy(kLavoro2, "?", 210)}},
    });
}

TEST(AgentProcess, Sessions_CountOnceEach_OnlyBelowTheirCopy) {
    Machine m;
    m.addMain("");
    EXPECT_EQ(agentSessions(m.processes, 100), 0);
    m.add(110, 100, kApp, {kApp, "--type=utility"});
    m.add(120, 110, "/home/a/.config/Claude/claude-code/2.1/claude", {"claude", "--resume"});
    m.add(121, 120, "/bin/sh", {"sh", "-c", "ls"});
    m.add(122, 121, "/usr/bin/claude", {"claude", "-p"}); // begun by the session itself
    m.add(130, 110, "/usr/bin/node", {"node", "/lib/@anthropic-ai/claude-code/cli.js"});
    m.add(140, 110, "/usr/bin/node", {"node", "server.js"});
    m.add(900, 1, "/usr/bin/claude", {"claude"}); // in a terminal
    EXPECT_EQ(agentSessions(m.processes, 100), 2);
    EXPECT_EQ(agentSessions(m.processes, 101), std::nullopt);
}

TEST(DataFolders, AFileBehindALink_LiesInTheFolder) {
    const test::TemporaryFolder home;
    std::filesystem::create_directories(home / "var/conti/lavoro");
    std::filesystem::create_directory_symlink(home / "var", home / "link");
    const DataFolders folders(home / "normal", home / "link/conti", {"lavoro"});
    const std::string lavoro = home / "link/conti/lavoro";
    EXPECT_EQ(folders.holding((home / "var/conti/lavoro/db").string()), lavoro);
    EXPECT_EQ(folders.holding(lavoro + "/db"), lavoro);
    EXPECT_EQ(folders.holding(lavoro + "2/db"), "");
}

TEST(DataFolderLock, EachText_IsReadOrRefused) {
    const auto lock = DataFolderLock::parse("/d", "my-host.example-421");
    ASSERT_TRUE(lock);
    EXPECT_EQ(lock->host, "my-host.example");
    EXPECT_EQ(lock->pid, 421);
    for (const char* text :
         {"", "host", "host-", "host-x", "host--", "host-0", "host-99999999999", "host-4 "})
        EXPECT_FALSE(DataFolderLock::parse("/d", text)) << text;
}

} // namespace
} // namespace selvane
