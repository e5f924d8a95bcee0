// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

// The SDK: versions of macOS.

#pragma once

#define MAC_OS_X_VERSION_10_12 101200
#define MAC_OS_VERSION_14_0 140000
#define MAC_OS_X_VERSION_MIN_REQUIRED MAC_OS_VERSION_14_0
#define MAC_OS_X_VERSION_MAX_ALLOWED MAC_OS_VERSION_14_0
