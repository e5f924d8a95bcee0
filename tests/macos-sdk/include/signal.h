// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

// libSystem: functions that are macros on macOS.

#pragma once

#include_next <signal.h>

#define sigemptyset(set) (__builtin_memset((set), 0, sizeof *(set)), 0)
#define sigfillset(set) (__builtin_memset((set), 255, sizeof *(set)), 0)
