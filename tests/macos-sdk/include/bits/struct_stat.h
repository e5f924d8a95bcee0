// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

// libSystem, <sys/stat.h>: the status of a file in the layout of macOS.

#pragma once

struct stat {
    __dev_t st_dev;
    __mode_t st_mode;
    __nlink_t st_nlink;
    __ino_t st_ino;
    __uid_t st_uid;
    __gid_t st_gid;
    __dev_t st_rdev;
    struct timespec st_atimespec;
    struct timespec st_mtimespec;
    struct timespec st_ctimespec;
    struct timespec st_birthtimespec;
    __off_t st_size;
    __blkcnt_t st_blocks;
    __blksize_t st_blksize;
    unsigned int st_flags;
    unsigned int st_gen;
    int st_lspare;
    long long st_qspare[2];
};

#define st_atime st_atimespec.tv_sec
#define st_mtime st_mtimespec.tv_sec
#define st_ctime st_ctimespec.tv_sec
