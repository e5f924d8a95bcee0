// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

// libSystem: without what only other systems declare.

#pragma once

#define environ notDeclaredOnMacOS
#define pipe2 notDeclaredOnMacOS2
#include_next <unistd.h>
#undef environ
#undef pipe2

#define _CS_DARWIN_USER_TEMP_DIR 65537
