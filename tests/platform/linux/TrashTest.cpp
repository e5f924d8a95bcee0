// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "platform/files/Trash.h"

#include <gtest/gtest.h>

#include "model/LauncherError.h"
#include "platform/linux/DesktopServices.h"
#include "platform/services/Received.h"
#include "support/TemporaryFolder.h"

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

} // namespace
} // namespace selvane
