// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

// libSystem: adds what only macOS has.

#pragma once

#include_next <sys/stat.h>

#define UF_IMMUTABLE 0x00000002
#define UF_APPEND 0x00000004
#define SF_IMMUTABLE 0x00020000
#define SF_APPEND 0x00040000
