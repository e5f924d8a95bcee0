// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include <QtQml>
#include <QtQuickTest>

#include <cstdlib>

#include "Views/TestHome.h"
#include "Views/shell/QmlModule.h"
#include "support/TemporaryFolder.h"

int main(int argc, char** argv) {
    // No test touches the real home folder or its Trash.
    const selvane::test::TemporaryFolder home;
    setenv("HOME", home.path().c_str(), 1);
    for (const char* variable : {"XDG_DATA_HOME", "XDG_CONFIG_HOME", "CLAUDE_CONFIG_DIR"})
        unsetenv(variable);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_QUICK_BACKEND", "software");
    qml_register_types_Selvane();
    qmlRegisterType<selvane::test::TestHome>("SelvaneTest", 1, 0, "TestHome");
    return quick_test_main(argc, argv, "components", QUICK_TEST_SOURCE_DIR);
}
