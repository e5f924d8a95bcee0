// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include <gtest/gtest.h>

#include "support/Files.h"
#include "support/WaitWatch.h"

namespace selvane {
namespace {

namespace fs = std::filesystem;
using Names = std::vector<std::string>;
using namespace test;

TEST(FileManager, WriteKeepsTheModeAndReplacesALink) {
    const TemporaryFolder folder;
    const mode_t mask = ::umask(027);
    makeFile(folder / "open", "old", 0664);
    kFiles.write(folder / "open", "new");
    EXPECT_EQ(modeOf(folder / "open"), 0664U);
    kFiles.write(folder / "open", "newer", Privacy::ownerOnly);
    EXPECT_EQ(modeOf(folder / "open"), 0600U);
    kFiles.createLink("open", folder / "link");
    kFiles.write(folder / "link", "own");
    EXPECT_EQ(modeOf(folder / "link"), 0640U);
    EXPECT_TRUE(kFiles.isRegularFile(folder / "link"));
    EXPECT_EQ(kFiles.read(folder / "open"), "newer");
    const std::string longest(255, 'n');
    kFiles.write(folder / longest, std::string("a\0b", 3), Privacy::ownerOnly);
    EXPECT_EQ(modeOf(folder / longest), 0600U);
    EXPECT_EQ(kFiles.read(folder / longest), std::string("a\0b", 3));
    ::umask(mask);
    EXPECT_EQ(kFiles.entries(folder.path()).size(), 3U);
}

TEST(FileManager, WriteThatFailsLeavesEverythingAsItWas) {
    const TemporaryFolder folder;
    kFiles.createFolder(folder / "folder");
    makeFile(folder / "folder/file", "old", 0600);
    kFiles.setMode(folder / "folder", 0555);
    EXPECT_TRUE(holdsUnprivileged(folder, [&] {
        return failure([&] { kFiles.write(folder / "folder/file", "new"); }) == EACCES &&
               failure([&] { kFiles.write(folder / "folder", "new"); }) == EISDIR &&
               failure([&] { kFiles.write(folder / "folder/file/x", "new"); }) == ENOTDIR &&
               failure([&] { kFiles.write(folder / "missing/x", "new"); }) == ENOENT;
    }));
    EXPECT_EQ(kFiles.entries(folder.path()), Names{"folder"});
    EXPECT_EQ(kFiles.read(folder / "folder/file"), "old");
}

TEST(FileManager, ReplaceLinkPutsAFolderInItsPlace) {
    const TemporaryFolder folder;
    kFiles.createFolder(folder / "target");
    kFiles.createLink("target", folder / "link");
    EXPECT_THROW(kFiles.replaceLink(folder / "link",
                                    [](const fs::path& temporary) {
                                        kFiles.createFolders(temporary / "half");
                                        throw std::runtime_error("stopped");
                                    }),
                 std::runtime_error);
    EXPECT_EQ(kFiles.linkTarget(folder / "link"), "target");
    const auto make = [](const fs::path& temporary) { kFiles.createFolders(temporary / "whole"); };
    kFiles.replaceLink(folder / "link", make);
    EXPECT_TRUE(kFiles.isFolder(folder / "link/whole"));
    EXPECT_EQ(failure([&] { kFiles.replaceLink(folder / "link", make); }), EEXIST);
    EXPECT_EQ(failure([&] { kFiles.replaceLink(folder / "missing", make); }), ENOENT);
    EXPECT_EQ(kFiles.entries(folder.path()).size(), 2U);
    EXPECT_EQ(kFiles.entries(folder / "target"), Names());
}

TEST(FileManager, ReplaceLinkGivesBackWhatIsNoLinkAnyMore) {
    const TemporaryFolder folder;
    kFiles.createLink("target", folder / "link");
    const auto meanwhile = [&](const fs::path& temporary) {
        kFiles.createFolder(temporary);
        kFiles.removeFile(folder / "link");
        kFiles.write(folder / "link", "the user's");
    };
    EXPECT_EQ(failure([&] { kFiles.replaceLink(folder / "link", meanwhile); }), EEXIST);
    EXPECT_EQ(kFiles.read(folder / "link"), "the user's");
    EXPECT_EQ(kFiles.entries(folder.path()), Names{"link"});
}

TEST(FileManager, ReplaceTrashingNeedsACompleteSuccessor) {
    const TemporaryFolder folder;
    makeFile(folder / "file", "old", 0600);
    const auto incomplete = [](const fs::path& temporary) {
        kFiles.write(temporary, "half");
        kFiles.createFolder(temporary / "inside");
    };
    try {
        kFiles.replaceTrashing(folder / "file", incomplete);
        FAIL() << "no error";
    } catch (const fs::filesystem_error& error) {
        EXPECT_EQ(error.path1(), folder / "file/inside");
    }
    EXPECT_EQ(kFiles.read(folder / "file"), "old");
    kFiles.replaceTrashing(folder / "other",
                           [](const fs::path& temporary) { kFiles.write(temporary, "new"); });
    EXPECT_EQ(kFiles.read(folder / "other"), "new");
    EXPECT_EQ(kFiles.entries(folder.path()).size(), 2U);
}

} // namespace
} // namespace selvane
