// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "platform/process/Process.h"

#include <csignal>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <pwd.h>
#include <sys/prctl.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include "model/LauncherError.h"
#include "platform/files/FileManager.h"
#include "support/TemporaryFolder.h"

namespace selvane {
namespace {

namespace fs = std::filesystem;
using test::TemporaryFolder;

const FileManager kFiles;

int runShell(const std::string& script, const fs::path& folder) {
    return process::run("/bin/sh", {"-c", script}, currentEnvironment(), folder);
}

void startShell(const std::string& script, const fs::path& folder, const Environment& environment = {},
                const std::string& pidVariable = {}) {
    process::startDetached("/bin/sh", {"-c", script}, environment, folder, pidVariable);
}

/// Runs `body` in a child. An exception aborts the child, or it would continue with the other tests.
template <typename Body>
pid_t forkInto(Body body) {
    const pid_t child = ::fork();
    if (child == 0) {
        [&]() noexcept { body(); }();
        ::_exit(0);
    }
    return child;
}

/// The path in the error of a failing operation.
template <typename Operation>
fs::path culprit(Operation operation) {
    try {
        operation();
    } catch (const fs::filesystem_error& error) {
        EXPECT_EQ(error.code().value(), ENOENT);
        return error.path1();
    }
    return {};
}

TEST(Process, HomeFolderIsTheVariableWhenItIsAbsolute) {
    const passwd* user = ::getpwuid(::getuid());
    ASSERT_NE(user, nullptr);
    const fs::path own = user->pw_dir;
    EXPECT_EQ(homeFolder({{"HOME", "/home/caff\xE8"}}), "/home/caff\xE8");
    EXPECT_EQ(homeFolder({{"HOME", "relative"}}), own);
    EXPECT_EQ(homeFolder({{"HOME", ""}}), own);
    EXPECT_EQ(homeFolder({}), own);
}

TEST(Process, RunGivesTheStatusAndMakesPrivateFiles) {
    const TemporaryFolder folder;
    EXPECT_EQ(runShell("echo noise; echo noise >&2; cat; : > made; exit 3", folder.path()), 3);
    struct stat status = {};
    ASSERT_EQ(::stat((folder / "made").c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 07777, 0600U);
    EXPECT_EQ(runShell("kill -9 $$", folder.path()), 128 + SIGKILL);
    EXPECT_EQ(culprit([&] { process::run("/no such", {}, {}, folder.path()); }), "/no such");
    EXPECT_EQ(culprit([&] { runShell("", folder / "missing"); }), folder / "missing");
}

TEST(Process, RunFreesTheChildOfWhatItsParentsIgnore) {
    const TemporaryFolder folder;
    sigset_t blocked;
    ::sigemptyset(&blocked);
    ::sigaddset(&blocked, SIGTERM);
    ::pthread_sigmask(SIG_BLOCK, &blocked, nullptr);
    ::signal(SIGCHLD, SIG_IGN);
    EXPECT_EQ(runShell("kill -TERM $$; exit 4", folder.path()), 128 + SIGTERM);
    ::signal(SIGCHLD, SIG_DFL);
    ::pthread_sigmask(SIG_UNBLOCK, &blocked, nullptr);
}

/// The signal that ends a process orphaned by one of our children; 0 if it exits.
int endingSignal(pid_t orphan) {
    int status = 0;
    EXPECT_EQ(::waitpid(orphan, &status, 0), orphan);
    return WIFSIGNALED(status) ? WTERMSIG(status) : 0;
}

TEST(Process, RunEndsWithItsParent) {
    const TemporaryFolder folder;
    ASSERT_EQ(::mkfifo((folder / "pid").c_str(), 0600), 0);
    ::prctl(PR_SET_CHILD_SUBREAPER, 1);
    const pid_t parent = forkInto([&] { runShell("echo $$ > pid; exec sleep 10", folder.path()); });
    const int fifo = ::open((folder / "pid").c_str(), O_RDONLY);
    char text[16] = {};
    ASSERT_GT(::read(fifo, text, sizeof text - 1), 0);
    ::close(fifo);
    ::kill(parent, SIGKILL);
    EXPECT_EQ(endingSignal(parent), SIGKILL);
    EXPECT_EQ(endingSignal(std::stoi(text)), SIGTERM);
    ::prctl(PR_SET_CHILD_SUBREAPER, 0);
}

TEST(Process, RunWaitsForAStoppedProgramButNotForEver) {
    const TemporaryFolder folder;
    const auto run = [&](const std::string& script, std::chrono::milliseconds limit) {
        return process::run("/bin/sh", {"-c", script}, currentEnvironment(), folder.path(), limit);
    };
    EXPECT_EQ(run("(sleep 0.1; kill -CONT $$) & kill -STOP $$; wait; exit 7", std::chrono::minutes(1)), 7);
    EXPECT_THROW(run("echo $$ >pid; kill -STOP $$; sleep 60", std::chrono::milliseconds(100)), LauncherError);
    EXPECT_NE(::kill(std::stoi(kFiles.read(folder / "pid")), 0), 0) << "it is ended";
}

TEST(Process, DetachedProgramGetsItsOwnWorld) {
    const TemporaryFolder folder;
    const int leaked = ::open("/dev/zero", O_RDONLY); // not closed on exec
    startShell("readlink /proc/$$/fd/* > files; tr '\\0' '\\n' < /proc/$$/environ > variables;"
               "echo $$ > pid; cut -d' ' -f6 /proc/$$/stat > session",
               folder.path(), {{"PATH", "/usr/bin:/bin"}, {"SELF", "old"}}, "SELF");
    ::close(leaked);
    const std::string pid = kFiles.read(folder / "pid");
    EXPECT_EQ(kFiles.read(folder / "session"), pid);
    EXPECT_EQ(kFiles.read(folder / "variables"), "SELF=" + pid + "PATH=/usr/bin:/bin\n");
    const std::string files = kFiles.read(folder / "files");
    EXPECT_EQ(files.find("zero"), std::string::npos) << files;
    EXPECT_EQ(files.find("pipe"), std::string::npos) << files;
    EXPECT_EQ(files.find("/dev/null\n"), 0U) << files;
}

TEST(Process, DetachedProgramLivesOn) {
    const TemporaryFolder folder;
    ::prctl(PR_SET_CHILD_SUBREAPER, 1);
    startShell("echo $$ > pid; exec sleep 10", folder.path(), {{"PATH", "/usr/bin:/bin"}});
    const pid_t pid = std::stoi(kFiles.read(folder / "pid"));
    ::kill(pid, SIGTERM);
    EXPECT_EQ(endingSignal(pid), SIGTERM);
    ::prctl(PR_SET_CHILD_SUBREAPER, 0);
}

TEST(Process, DetachedProgramThatFailsAtOnceIsAnError) {
    const TemporaryFolder folder;
    EXPECT_NO_THROW(startShell("exit 0", folder.path()));
    try {
        startShell("exit 3", folder.path());
        FAIL() << "no error";
    } catch (const LauncherError& error) {
        EXPECT_STREQ(error.what(), "«sh» si è chiuso subito dopo l'avvio (stato 3)");
    }
    EXPECT_EQ(culprit([&] { process::startDetached("/no such", {}, {}, folder.path()); }), "/no such");
    EXPECT_EQ(culprit([&] { startShell("", folder / "missing"); }), folder / "missing");
}

TEST(Process, StartsWithClosedStandardStreams) {
    const TemporaryFolder folder;
    const pid_t child = forkInto([&] {
        for (int stream = 0; stream <= 2; ++stream)
            ::close(stream);
        startShell("echo $(readlink /proc/$$/fd/[012]) > files", folder.path(), {{"PATH", "/usr/bin:/bin"}});
    });
    int status = -1;
    ::waitpid(child, &status, 0);
    EXPECT_EQ(status, 0);
    EXPECT_EQ(kFiles.read(folder / "files"), "/dev/null /dev/null /dev/null\n");
}

} // namespace
} // namespace selvane
