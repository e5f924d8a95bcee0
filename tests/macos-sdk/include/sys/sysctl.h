// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

// libSystem: kernel values.

#pragma once

#include <stddef.h>

#define CTL_KERN 1
#define KERN_PROCARGS2 49

extern "C" int sysctl(int* name, unsigned int parts, void* value, size_t* size, void* newValue,
                      size_t newSize);
extern "C" int sysctlbyname(const char* name, void* value, size_t* size, void* newValue, size_t newSize);
