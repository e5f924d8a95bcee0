// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

// libSystem: adds what only macOS has.

#pragma once

#include_next <fcntl.h>

#define F_GETPATH 50
#define F_FULLFSYNC 51
#define O_EVTONLY 0x8000
#define O_SYMLINK 0x200000
