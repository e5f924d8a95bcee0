// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include <QtQuickTest>

#include "Views/QmlModule.h"

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_QUICK_BACKEND", "software");
    qml_register_types_Selvane();
    return quick_test_main(argc, argv, "components", QUICK_TEST_SOURCE_DIR);
}
