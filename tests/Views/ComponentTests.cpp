// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include <QtQml>
#include <QtQuickTest>

#include "Views/Events.h"
#include "Views/TestHome.h"
#include "Views/shell/QmlModule.h"
#include "support/OwnHome.h"

int main(int argc, char** argv) {
    const selvane::test::OwnHome home;
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_QUICK_BACKEND", "software");
    qml_register_types_Selvane();
    qmlRegisterType<selvane::test::TestHome>("SelvaneTest", 1, 0, "TestHome");
    qmlRegisterSingletonType<selvane::test::Events>(
        "SelvaneTest", 1, 0, "Events", [](QQmlEngine*, QJSEngine*) { return new selvane::test::Events; });
    return quick_test_main(argc, argv, "components", QUICK_TEST_SOURCE_DIR);
}
