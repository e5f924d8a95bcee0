// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

// libSystem: copying files.

#pragma once

#include <stdint.h>

typedef struct _copyfile_state* copyfile_state_t;
typedef uint32_t copyfile_flags_t;

#define COPYFILE_ACL (1 << 0)
#define COPYFILE_STAT (1 << 1)
#define COPYFILE_XATTR (1 << 2)
#define COPYFILE_DATA (1 << 3)
#define COPYFILE_DATA_SPARSE (1 << 27)

extern "C" int fcopyfile(int from, int to, copyfile_state_t state, copyfile_flags_t flags);
