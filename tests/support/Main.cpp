// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include <filesystem>
#include <gtest/gtest.h>

#include "support/OwnHome.h"

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    const selvane::test::OwnHome home;
    return RUN_ALL_TESTS();
}
