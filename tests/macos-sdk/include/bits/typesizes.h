// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

// libSystem: the widths of POSIX types on macOS; replaces this system's own header.

#pragma once

#define __SYSCALL_SLONG_TYPE long
#define __SYSCALL_ULONG_TYPE unsigned long
#define __DEV_T_TYPE int
#define __UID_T_TYPE unsigned int
#define __GID_T_TYPE unsigned int
#define __INO_T_TYPE unsigned long long
#define __INO64_T_TYPE unsigned long long
#define __MODE_T_TYPE unsigned short
#define __NLINK_T_TYPE unsigned short
#define __FSWORD_T_TYPE long
#define __OFF_T_TYPE long long
#define __OFF64_T_TYPE long long
#define __PID_T_TYPE int
#define __RLIM_T_TYPE unsigned long long
#define __RLIM64_T_TYPE unsigned long long
#define __BLKCNT_T_TYPE long long
#define __BLKCNT64_T_TYPE long long
#define __FSBLKCNT_T_TYPE unsigned int
#define __FSBLKCNT64_T_TYPE unsigned int
#define __FSFILCNT_T_TYPE unsigned int
#define __FSFILCNT64_T_TYPE unsigned int
#define __ID_T_TYPE unsigned int
#define __CLOCK_T_TYPE unsigned long
#define __TIME_T_TYPE long
#define __USECONDS_T_TYPE unsigned int
#define __SUSECONDS_T_TYPE int
#define __SUSECONDS64_T_TYPE int
#define __DADDR_T_TYPE int
#define __KEY_T_TYPE int
#define __CLOCKID_T_TYPE unsigned int
#define __TIMER_T_TYPE void*
#define __BLKSIZE_T_TYPE int
#define __FSID_T_TYPE                                                                                        \
    struct {                                                                                                 \
        int val[2];                                                                                          \
    }
#define __SSIZE_T_TYPE long
#define __CPU_MASK_TYPE unsigned long
#define __OFF_T_MATCHES_OFF64_T 1
#define __INO_T_MATCHES_INO64_T 1
#define __RLIM_T_MATCHES_RLIM64_T 1
#define __STATFS_MATCHES_STATFS64 1
#define __KERNEL_OLD_TIMEVAL_MATCHES_TIMEVAL64 1
#define __FD_SETSIZE 1024
