// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include <algorithm>
#include <array>
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <string_view>
#include <sys/stat.h>
#include <sys/wait.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <gtest/gtest.h>

#include "model/LauncherError.h"
#include "platform/files/FileCopy.h"
#include "platform/files/FileManager.h"
#include "platform/process/ProcInfo.h"
#include "platform/process/Process.h"
#include "platform/process/Workspace.h"
#include "platform/services/ModuleFolder.h"
#include "support/Home.h"
#include "support/TemporaryFolder.h"

namespace selvane::test {
namespace {

constexpr const char* kAttribute = "org.selvane.test";
const FileManager kFiles;

struct stat statusOf(const std::filesystem::path& path) {
    struct stat status = {};
    EXPECT_EQ(::lstat(path.c_str(), &status), 0) << path;
    return status;
}

std::unique_ptr<Workspace> workspaceFor(const char* bundleId) {
    return makeWorkspace({{bundleId}, ""}, currentEnvironment());
}

TEST(MacProcInfoTest, readsThisProcess) {
    const auto self = ProcInfo::read(::getpid());
    ASSERT_TRUE(self);
    EXPECT_TRUE(std::filesystem::equivalent(self->path, modulePath("").parent_path() / "core-tests"));
    EXPECT_EQ(self->ppid, ::getppid());
    EXPECT_GT(self->startTime, 1'700'000'000'000'000u);
    ASSERT_FALSE(self->args.empty());
    EXPECT_TRUE(self->args.front().ends_with("core-tests"));
    EXPECT_EQ(self->env.at("PATH"), std::getenv("PATH"));
    const std::vector<ProcInfo> all = ProcInfo::all();
    EXPECT_NE(std::find(all.begin(), all.end(), *self), all.end());
}

TEST(MacProcInfoTest, tellsLittleOfOthersAndNothingOfNone) {
    EXPECT_FALSE(ProcInfo::read(-1));
    const auto launchd = ProcInfo::read(1);
    if (::geteuid() != 0 && launchd) {
        EXPECT_EQ(launchd->args, std::vector<std::string>());
        EXPECT_TRUE(launchd->env.empty());
    }
}

TEST(MacFilesTest, copyKeepsWhatAFileHasAndBlocksOnNothing) {
    const TemporaryFolder folder;
    const auto from = folder.path() / "da";
    std::filesystem::create_directories(from);
    writeFile(from / "file", std::string(100'000, 'x'));
    ASSERT_EQ(::setxattr((from / "file").c_str(), kAttribute, "v", 1, 0, 0), 0);
    kFiles.setMode(from / "file", 0440);
    const std::array<timespec, 2> times = {timespec{1'600'000'000, 1}, timespec{1'600'000'000, 123'456'789}};
    ASSERT_EQ(::utimensat(AT_FDCWD, (from / "file").c_str(), times.data(), 0), 0);
    ASSERT_EQ(::mkfifo((from / "coda").c_str(), 0600), 0);
    kFiles.createLink("assente", from / "link");

    const auto to = folder.path() / "a";
    kFiles.copy(from, to);

    EXPECT_EQ(kFiles.read(to / "file"), kFiles.read(from / "file"));
    EXPECT_EQ(statusOf(to / "file").st_mode & ALLPERMS, 0440);
    EXPECT_EQ(statusOf(to / "file").st_mtimespec.tv_nsec, 123'456'789);
    char value = 0;
    EXPECT_EQ(::getxattr((to / "file").c_str(), kAttribute, &value, 1, 0, 0), 1);
    EXPECT_TRUE(S_ISFIFO(statusOf(to / "coda").st_mode));
    EXPECT_EQ(kFiles.linkTarget(to / "link"), "assente");
}

TEST(MacFilesTest, ownerOnlyCopy_IsForNobodyElse_WhateverTheAccessList) {
    const TemporaryFolder folder;
    writeFile(folder.path() / "segreto", "s");
    ASSERT_EQ(process::run("/bin/chmod", {"+a", "everyone allow read", (folder.path() / "segreto").string()},
                           {}, "/"),
              0);
    kFiles.copy(folder.path() / "segreto", folder.path() / "copia", Privacy::ownerOnly);
    EXPECT_EQ(statusOf(folder.path() / "copia").st_mode & (S_IRWXG | S_IRWXO), 0);
    const std::string look = "test \"$(ls -le '" + (folder.path() / "copia").string() + "' | wc -l)\" -eq 1";
    EXPECT_EQ(process::run("/bin/sh", {"-c", look}, {{"PATH", "/usr/bin:/bin"}}, "/"), 0);
}

TEST(MacFilesTest, renamingReplacesNothingAndExchangesInOneStep) {
    const TemporaryFolder folder;
    const auto file = folder.path() / "file";
    const auto other = folder.path() / "altro";
    writeFile(file, "1");
    std::filesystem::create_directory(other);
    EXPECT_EQ(files::renameExclusively(file, other), EEXIST);
    EXPECT_EQ(files::exchangeNames(file, other), 0);
    EXPECT_TRUE(kFiles.isFolder(file));
    EXPECT_EQ(kFiles.read(other), "1");
}

TEST(MacFilesTest, trashTakesFilesAndDanglingLinks) {
    if (std::getenv("CI") == nullptr)
        GTEST_SKIP() << "it would fill the Trash of whoever runs it";
    const TemporaryFolder folder;
    writeFile(folder.path() / "file", "1");
    kFiles.createLink(folder.path() / "assente", folder.path() / "link");
    kFiles.createLink(folder.path() / "file", folder.path() / "buono");
    for (const char* name : {"link", "buono", "file"}) {
        kFiles.moveToTrash(folder.path() / name);
        EXPECT_FALSE(kFiles.exists(folder.path() / name)) << name;
    }
    EXPECT_THROW(kFiles.moveToTrash(folder.path() / "file"), LauncherError);
}

TEST(MacProcessTest, run_HandsOnStatusFolderAndEnvironment) {
    const TemporaryFolder folder;
    const auto shell = [&](const std::string& script) {
        return process::run("/bin/sh", {"-c", script}, {{"PATH", "/usr/bin:/bin"}, {"X", "y z"}},
                            folder.path());
    };
    EXPECT_EQ(shell("exit 3"), 3);
    EXPECT_EQ(shell("kill -9 $$"), 128 + 9);
    EXPECT_EQ(shell("printf %s \"$X\" > file"), 0);
    EXPECT_EQ(kFiles.read(folder.path() / "file"), "y z");
    EXPECT_EQ(statusOf(folder.path() / "file").st_mode & ALLPERMS, 0600);
    EXPECT_THROW(process::run(folder.path() / "assente", {}, {}, "/"), std::filesystem::filesystem_error);
}

TEST(MacProcessTest, run_EndsWithItsCaller) {
    const TemporaryFolder folder;
    const pid_t caller = ::fork();
    if (caller == 0) {
        process::run("/bin/sh", {"-c", "echo $$ > pid; sleep 60"}, {{"PATH", "/usr/bin:/bin"}},
                     folder.path());
        ::_exit(0);
    }
    const auto pidFile = folder.path() / "pid";
    const auto isWritten = [&] { return kFiles.exists(pidFile) && !kFiles.read(pidFile).empty(); };
    for (int i = 0; i < 1000 && !isWritten(); ++i)
        ::usleep(10'000);
    const pid_t worker = std::atoi(kFiles.read(pidFile).c_str());
    ASSERT_GT(worker, 0);
    ::kill(caller, SIGKILL);
    int status = 0;
    ::waitpid(caller, &status, 0);
    for (int i = 0; i < 1000 && ::kill(worker, 0) == 0; ++i)
        ::usleep(10'000);
    EXPECT_NE(::kill(worker, 0), 0);
}

TEST(MacWorkspaceTest, anApplicationThatIsNotThere) {
    const auto workspace = workspaceFor("org.selvane.assente");
    EXPECT_FALSE(workspace->application());
    EXPECT_TRUE(workspace->running(ProcInfo::all()).empty());
    EXPECT_THROW(workspace->open({.executable = "/assente.app/x",
                                  .arguments = {},
                                  .entry = {},
                                  .folder = "/assente.app",
                                  .workingFolder = {}},
                                 {}),
                 LauncherError);
}

TEST(MacWorkspaceTest, findsAnApplicationOfTheSystem) {
    const auto finder = workspaceFor("com.apple.finder")->application();
    ASSERT_TRUE(finder);
    EXPECT_EQ(finder->folder.extension(), ".app");
    EXPECT_TRUE(kFiles.isRegularFile(finder->executable));
}

TEST(MacWorkspaceTest, aProcessIsTerminatedOnceItsStartTimeDiffers) {
    const auto workspace = workspaceFor("org.selvane.assente");
    const auto self = ProcInfo::read(::getpid());
    EXPECT_FALSE(workspace->isTerminated({self->pid, self->startTime}));
    EXPECT_TRUE(workspace->isTerminated({self->pid, self->startTime + 1}));
}

} // namespace
} // namespace selvane::test
