// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

// libSystem: where groups are plain integers for one function.

#pragma once

#define initgroups notDeclaredOnMacOS3
#include_next <grp.h>
#undef initgroups

extern "C" int initgroups(const char* user, int group);
