// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

// libSystem: access lists. macOS has "extended" ones; the POSIX kinds don't exist there.

#pragma once

typedef struct _acl* acl_t;
typedef enum { ACL_TYPE_EXTENDED = 0x00000100 } acl_type_t;

extern "C" {
int acl_free(void* object);
acl_t acl_get_fd_np(int file, acl_type_t type);
acl_t acl_init(int entries);
int acl_set_fd_np(int file, acl_t list, acl_type_t type);
}
