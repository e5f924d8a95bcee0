// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

// libSystem: extended attributes.

#pragma once

#include <stddef.h>
#include <stdint.h>
#include <sys/types.h>

extern "C" {
ssize_t getxattr(const char* path, const char* name, void* value, size_t size, uint32_t position,
                 int options);
int setxattr(const char* path, const char* name, const void* value, size_t size, uint32_t position,
             int options);
}
