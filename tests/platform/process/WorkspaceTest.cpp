// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "platform/linux/RunningApplications.h"

#include <gtest/gtest.h>

#include "platform/linux/ProcStat.h"

namespace selvane {
namespace {

using Pids = std::vector<std::int32_t>;

const ApplicationIdentity kIdentity{{"com.example.Chat", "chat"}, "chat-desktop"};
const std::string kFolder = "/usr/lib/chat-desktop";
const std::string kExecutable = kFolder + "/chat-desktop";

ProcInfo process(std::int32_t pid, std::int32_t ppid, std::string path,
                 std::vector<std::string> arguments = {}, Environment environment = {}) {
    arguments.insert(arguments.begin(), path);
    return {pid,
            ppid,
            pid,
            1000U + static_cast<std::uint64_t>(pid),
            std::move(path),
            std::move(arguments),
            std::move(environment)};
}

Environment startedBy(const std::string& entry, std::int32_t pid) {
    return {{"GIO_LAUNCHED_DESKTOP_FILE", entry}, {"GIO_LAUNCHED_DESKTOP_FILE_PID", std::to_string(pid)}};
}

Pids mainPids(const std::vector<ProcInfo>& processes, const std::string& folder = kFolder) {
    Pids pids;
    for (const RunningApplication& app : mainProcesses(processes, kIdentity, folder)) {
        EXPECT_EQ(app.startTime, 1000U + static_cast<std::uint64_t>(app.pid));
        pids.push_back(app.pid);
    }
    return pids;
}

TEST(MainProcesses, AreThoseOfEachInstanceInOrder) {
    const std::vector<ProcInfo> processes = {
        process(1, 0, "/usr/lib/systemd/systemd"),
        process(90, 1, kExecutable, {"--user-data-dir=/home/a/b"}),
        process(91, 90, kExecutable, {"--type=zygote"}),
        process(92, 91, kExecutable, {"--type=renderer"}),
        process(50, 1, kExecutable),
        process(51, 50, kFolder + "/resources/server"),
        process(52, 51, kExecutable),
    };
    EXPECT_EQ(mainPids(processes), (Pids{90, 50}));
    EXPECT_EQ(mainPids(processes, ""), (Pids{90, 50})) << "by the name alone";
}

TEST(MainProcesses, LeaveOutHelpersWithoutTheirMainProcess) {
    ProcInfo retitled = process(10, 1, kExecutable);
    retitled.args = {kExecutable + " --type=renderer --user-data-dir=/tmp/with space --foo", "", ""};
    const std::vector<ProcInfo> processes = {
        retitled,
        process(11, 1, kExecutable, {"--lang=it", "--type=utility"}),
        process(12, 1, kFolder + "/chrome_crashpad_handler", {"--database=/home/a/Crashpad"}),
        process(13, 1, kFolder + "/chrome-sandbox"),
        process(14, 1, kExecutable, {"server.js"}, {{"ELECTRON_RUN_AS_NODE", "1"}}),
        process(15, 1, kFolder + "/resources/native-host"),
        process(16, 1, kFolder + "/bin/python3.11"),
    };
    EXPECT_EQ(mainPids(processes), Pids{});
}

TEST(MainProcesses, AreNotRecognisedByWhatTheyMention) {
    const std::vector<ProcInfo> processes = {
        process(10, 1, "/usr/bin/bash", {"-c", kExecutable}),
        process(11, 1, "/usr/bin/tail", {"-f", "/var/log/chat-desktop"}),
        process(12, 1, kFolder + "-tools/viewer"),
        process(13, 1, kExecutable, {"--user-data-dir=/home/a/x --type=y", "chat://open?--type=z"}),
    };
    EXPECT_EQ(mainPids(processes), Pids{13});
}

TEST(MainProcesses, StartedThroughAWrapperAreRecognisedByItsEntry) {
    const std::string electron = "/usr/lib/electron/electron";
    const std::string entry = "/usr/share/applications/chat.desktop";
    const std::vector<ProcInfo> processes = {
        // The wrapper is replaced by the application.
        process(10, 1, electron, {}, startedBy(entry, 10)),
        process(11, 10, "/usr/lib/git-core/git-lfs", {}, startedBy(entry, 10)),
        // The wrapper stays as the parent.
        process(20, 1, "/usr/bin/dash", {"/usr/bin/chat-desktop"}, startedBy(entry, 20)),
        process(21, 20, electron, {}, startedBy(entry, 20)),
        process(22, 20, "/usr/bin/cat", {}, startedBy(entry, 20)),
        // Started by an instance that has ended.
        process(30, 1, "/usr/lib/firefox/firefox", {}, startedBy(entry, 29)),
        // Other applications.
        process(40, 1, electron, {}, startedBy("/usr/share/applications/other.desktop", 40)),
        process(50, 1, electron, {}, {{"GIO_LAUNCHED_DESKTOP_FILE", entry}}),
    };
    EXPECT_EQ(mainPids(processes, ""), (Pids{10, 21}));
}

TEST(MainProcesses, SurviveACircleOfParents) {
    const std::vector<ProcInfo> processes = {
        process(10, 12, kExecutable),    process(11, 10, "/usr/bin/env"), process(12, 11, "/usr/bin/env"),
        process(13, 13, kExecutable),    process(20, 21, kExecutable),    process(21, 22, "/usr/bin/env"),
        process(22, 21, "/usr/bin/env"),
    };
    EXPECT_EQ(mainPids(processes), (Pids{10, 13, 20}));
}

TEST(ProcStat, ReadsPastAnyCommandName) {
    const std::string rest = " 7 1 1 0 -1 4194304 1 0 0 0 2 1 0 0 20 0 1 0 987654321012 1000 2";
    for (const std::string name : {"cat", "a b", "x) Z 99 (", "(", ")", "new\nline"}) {
        const auto stat =
            ProcStat::parse(std::string("42 (").append(name).append(") S").append(rest).append("\n"));
        ASSERT_TRUE(stat) << name;
        EXPECT_EQ(stat->ppid, 7);
        EXPECT_EQ(stat->startTime, 987654321012U);
        EXPECT_FALSE(stat->isEnded());
    }
    EXPECT_TRUE(ProcStat::parse("42 (cat) Z" + rest)->isEnded());
    for (const std::string& line :
         std::vector<std::string>{"", "42 (cat", "42 (cat)", "42 (cat) S 7 1", "42 (cat) S x" + rest})
        EXPECT_FALSE(ProcStat::parse(line)) << line;
}

} // namespace
} // namespace selvane
