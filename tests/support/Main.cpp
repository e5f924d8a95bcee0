// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include <cstdlib>
#include <filesystem>
#include <gtest/gtest.h>

#include "support/TemporaryFolder.h"

/// No test touches the real home folder: Trash and desktop entries are those of a throw-away one.
int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    const selvane::test::TemporaryFolder home;
    setenv("HOME", home.path().c_str(), 1);
    for (const char* variable :
         {"XDG_DATA_HOME", "XDG_CONFIG_HOME", "XDG_DATA_DIRS", "CLAUDE_CONFIG_DIR", "DISPLAY"})
        unsetenv(variable);
    return RUN_ALL_TESTS();
}
