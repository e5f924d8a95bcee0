// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "platform/files/FolderLock.h"

#include <csignal>
#include <gtest/gtest.h>
#include <thread>

#include "model/LauncherError.h"
#include "platform/files/Progress.h"
#include "support/Files.h"
#include "support/WaitWatch.h"

namespace selvane {
namespace {

namespace fs = std::filesystem;
using namespace test;
using namespace std::chrono_literals;

/// The message with which locking the folder fails; "" if it doesn't.
std::string messageOfLocking(const fs::path& folder) {
    try {
        const FolderLock lock(folder, nullptr, 30ms);
    } catch (const LauncherError& error) {
        return error.what();
    }
    return "";
}

TEST(FolderLock, IsThatOfAFolderWhichAppearsWhileItWaits) {
    const TemporaryFolder folder;
    kFiles.createFolder(folder / "locked");
    const WaitWatch watch(WaitWatch::For::lock, [&](const fs::path& waitedFor) {
        if (kFiles.exists(folder / "away"))
            return;
        fs::rename(waitedFor, folder / "away");
        kFiles.createFolder(waitedFor);
    });
    const FolderLock lock(folder / "locked");
    EXPECT_TRUE(isLocked(folder / "locked"));
    EXPECT_FALSE(isLocked(folder / "away"));
}

TEST(FolderLock, NamesWhoHoldsItWhenItHasWaitedLongEnough) {
    const TemporaryFolder folder;
    const pid_t holder = ::fork();
    if (holder == 0) {
        const FolderLock lock(folder.path());
        ::raise(SIGSTOP);
        ::_exit(0);
    }
    int status = 0;
    ASSERT_EQ(::waitpid(holder, &status, WUNTRACED), holder);
    ASSERT_TRUE(WIFSTOPPED(status));
    EXPECT_EQ(messageOfLocking(folder.path()), folder.path().string() + " è in uso da core-tests (processo " +
                                                   std::to_string(holder) +
                                                   ", fermo): riprova quando ha finito");
    EXPECT_FALSE(FolderLock::ifFree(folder.path()));
    Progress progress;
    progress.cancel();
    EXPECT_THROW(FolderLock(folder.path(), &progress), fs::filesystem_error);
    ::kill(holder, SIGCONT);
    EXPECT_NO_THROW(FolderLock(folder.path()));
    ::waitpid(holder, &status, 0);
}

TEST(FolderLock, IsRefusedAtOnceToWhoeverHasIt) {
    const TemporaryFolder folder;
    kFiles.createFolder(folder / "folder");
    kFiles.createLink("folder", folder / "link");
    std::optional<FolderLock> lock(std::in_place, folder / "folder");
    EXPECT_NE(messageOfLocking(folder / "link").find("questa stessa operazione"), std::string::npos);
    std::thread([&] {
        EXPECT_NE(messageOfLocking(folder / "link").find("(processo " + std::to_string(::getpid()) + ")"),
                  std::string::npos);
    }).join();
    const std::optional<FolderLock> moved = std::move(lock);
    EXPECT_NE(messageOfLocking(folder / "link"), "");
    EXPECT_EQ(messageOfLocking(folder / "missing"), "");
    EXPECT_FALSE(FolderLock::ifFree(folder / "missing"));
}

} // namespace
} // namespace selvane
