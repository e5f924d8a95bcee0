// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "Main/TerminalProgress.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include "platform/files/Progress.h"
#include "support/Home.h"
#include "support/InstalledClaude.h"

namespace selvane {
namespace {

namespace fs = std::filesystem;
using namespace test;

TEST(TerminalProgress, ShowsOneLineAndTakesItAway) {
    const TemporaryFolder folder;
    const fs::path terminal = folder / "terminal";
    writeFile(terminal, "");
    writeFile(folder / "grande", "");
    fs::resize_file(folder / "grande", 4'000'000);
    const int descriptor = ::open(terminal.c_str(), O_WRONLY | O_APPEND | O_CLOEXEC);
    {
        Progress progress;
        const TerminalProgress quick(progress, descriptor);
        progress.advance(1, 1);
    }
    EXPECT_EQ(readFile(terminal), "") << "nothing within a second";
    {
        Progress progress;
        const TerminalProgress shown(progress, descriptor, std::chrono::milliseconds(1));
        progress.advance(12'345, 1'000'000);
        waitUntil([&] { return readFile(terminal) == "\r\x1b[K12.345 file finora · 1 MB"; });
        progress.expect(folder / "grande");
        waitUntil([&] { return readFile(terminal).ends_with("\r\x1b[K1 MB di 4 MB"); });
    }
    EXPECT_TRUE(readFile(terminal).ends_with("\r\x1b[K1 MB di 4 MB\r\x1b[K"));
    ::close(descriptor);
}

} // namespace
} // namespace selvane
