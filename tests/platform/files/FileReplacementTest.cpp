// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include <gtest/gtest.h>

#include "support/Files.h"
#include "support/Home.h"
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

/// The places in which a killed `replaceTrashing` leaves a file, and what comes of it.
TEST(FileManager, RecoverReplacedPutsBackWhatHasNoSuccessor) {
    const TemporaryFolder folder;
    const fs::path file = folder / "file";
    const fs::path kept = folder / ".selvane-kept-file";
    kFiles.recoverReplaced(file);
    makeFile(kept, "old", 0640);
    kFiles.recoverReplaced(file);
    EXPECT_EQ(kFiles.read(file), "old") << "its name was free";
    EXPECT_EQ(modeOf(file), 0640U);
    fs::create_hard_link(file, kept);
    kFiles.recoverReplaced(file);
    EXPECT_EQ(kFiles.entries(folder.path()), Names{"file"}) << "it never went away";
    makeFile(kept, "older", 0600);
    const std::string message = messageOf([&] { kFiles.recoverReplaced(file); });
    EXPECT_EQ(kFiles.read(file), "old") << "somebody has written a new one";
    EXPECT_EQ(message, "");
    EXPECT_EQ(takeTrash().size(), 1U);
    EXPECT_EQ(kFiles.entries(folder.path()), Names{"file"});
}

TEST(FileManager, WriteIfUnchangedTakesNothingAwayThatOthersWrote) {
    const TemporaryFolder folder;
    const fs::path file = folder / "file";
    EXPECT_FALSE(kFiles.writeIfUnchanged(file, "old", "new"));
    EXPECT_TRUE(kFiles.writeIfUnchanged(file, {}, "old"));
    EXPECT_FALSE(kFiles.writeIfUnchanged(file, {}, "new"));
    EXPECT_EQ(modeOf(file), 0600U);
    {
        // Just before the last look, another program writes.
        const WaitWatch watch(WaitWatch::For::disk, [&](const fs::path&) { writeFile(file, "theirs"); });
        EXPECT_FALSE(kFiles.writeIfUnchanged(file, "old", "new"));
    }
    EXPECT_EQ(kFiles.read(file), "theirs");
    kFiles.setMode(file, 0400);
    EXPECT_TRUE(kFiles.writeIfUnchanged(file, "theirs", "new"));
    EXPECT_EQ(kFiles.read(file), "new");
    EXPECT_EQ(modeOf(file), 0400U);
    EXPECT_EQ(kFiles.entries(folder.path()), Names{"file"});
}

} // namespace
} // namespace selvane
