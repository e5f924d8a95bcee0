// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include <QCoreApplication>

#include <cstdlib>
#include <gtest/gtest.h>

#include "support/TemporaryFolder.h"

/// No test touches the real home folder.
int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    const selvane::test::TemporaryFolder home;
    setenv("HOME", home.path().c_str(), 1);
    for (const char* variable : {"XDG_DATA_HOME", "XDG_CONFIG_HOME", "CLAUDE_CONFIG_DIR"})
        unsetenv(variable);
    const QCoreApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
