// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

// libSystem: the dynamic loader.

#pragma once

#include <stdint.h>

extern "C" int _NSGetExecutablePath(char* buffer, uint32_t* size);
