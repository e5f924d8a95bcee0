// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

// libSystem: files that share their blocks.

#pragma once

#include <stdint.h>

#define CLONE_NOFOLLOW 0x0001
#define CLONE_NOOWNERCOPY 0x0002

extern "C" {
int clonefileat(int fromFolder, const char* from, int toFolder, const char* to, uint32_t flags);
int fclonefileat(int from, int toFolder, const char* to, uint32_t flags);
}
