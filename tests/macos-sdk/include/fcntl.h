// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

// libSystem: adds what only macOS has.

#pragma once

#include_next <fcntl.h>

#define F_GETPATH 50
#define F_FULLFSYNC 51
#define O_EVTONLY 0x8000
#define O_SYMLINK 0x200000

// How an open file is used, as `proc_fileinfo` tells it: one more than O_RDONLY and O_WRONLY.
#define FREAD 0x0001
#define FWRITE 0x0002
