// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include <QCoreApplication>

#include <gtest/gtest.h>

#include "support/OwnHome.h"

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    const selvane::test::OwnHome home;
    const QCoreApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
