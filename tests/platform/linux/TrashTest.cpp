// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "platform/files/Trash.h"

#include <gtest/gtest.h>

#include "model/LauncherError.h"
#include "platform/linux/DesktopServices.h"
#include "platform/services/Received.h"
#include "support/Home.h"

namespace selvane {
namespace {

TEST(Trash, ARefusal_IsToldWithTheSystemsReason) {
    const test::TemporaryFolder folder;
    const std::filesystem::path missing = folder / "missing";
    Received<std::string> received;
    EXPECT_EQ(desktopServices().trash(missing.c_str(), appendBytes, &received), ENOENT);
    const std::string reason = received.take();
    ASSERT_NE(reason, "");
    try {
        moveToTrash(missing);
        FAIL() << "nothing was thrown";
    } catch (const LauncherError& error) {
        const std::string message = error.what();
        EXPECT_TRUE(message.starts_with(missing.string() + ": non può essere spostato nel Cestino ("))
            << message;
        EXPECT_TRUE(message.ends_with(": " + reason + ")")) << message;
    }
}

TEST(Trash, WhatItTakes_IsToldWithItsPlaceAndNote) {
    const test::TemporaryFolder folder;
    test::writeTree(folder.path(), {{"a/nota", "prima"}, {"b/nota", "seconda"}, {"link", "-> nota"}});
    const auto first = moveToTrash(folder / "a/nota");
    const auto second = moveToTrash(folder / "b/nota"); // under another name
    const auto link = moveToTrash(folder / "link");
    const auto whole = moveToTrash(folder / "a");
    ASSERT_TRUE(first && second && link && whole);
    EXPECT_EQ(test::readFile(first->place), "prima");
    EXPECT_EQ(test::readFile(second->place), "seconda");
    EXPECT_EQ(std::filesystem::read_symlink(link->place), "nota");
    EXPECT_TRUE(std::filesystem::is_directory(whole->place));
    EXPECT_NE(test::readFile(second->note).find("Path=" + (folder / "b/nota").string()), std::string::npos);
    test::takeTrash();
}

} // namespace
} // namespace selvane
