// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

// libSystem: adds what only macOS has.

#pragma once

#include_next <stdio.h>

#define RENAME_SWAP 0x00000002
#define RENAME_EXCL 0x00000004

extern "C" int renameatx_np(int fromFolder, const char* from, int toFolder, const char* to,
                            unsigned int flags);
