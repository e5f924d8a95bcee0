// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include <QLibrary>
#include <QtQuickTest>

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_QUICK_BACKEND", "software");
    QLibrary module(QStringLiteral(SELVANE_WINDOWS_MODULE));
    if (!module.load())
        qFatal("%s", qPrintable(module.errorString()));
    return quick_test_main(argc, argv, "components", QUICK_TEST_SOURCE_DIR);
}
