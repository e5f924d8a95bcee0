// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

// The SDK: versions of macOS.

#pragma once

#include <AvailabilityMacros.h>

#define __MAC_14_0 140000
#define __MAC_OS_X_VERSION_MIN_REQUIRED __MAC_14_0
#define __MAC_OS_X_VERSION_MAX_ALLOWED __MAC_14_0
