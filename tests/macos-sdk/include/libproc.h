// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

// libSystem: the kernel's data on processes.

#pragma once

#include <stdint.h>
#include <sys/param.h>
#include <sys/types.h>

#define PROC_PIDLISTFDS 1
#define PROC_PIDTBSDINFO 3
#define PROC_PIDTBSDINFO_SIZE (sizeof(struct proc_bsdinfo))
#define PROC_PIDPATHINFO_MAXSIZE (4 * 1024)
#define PROC_PIDFDVNODEPATHINFO 2
#define PROX_FDTYPE_VNODE 1
#define MAXCOMLEN 16

struct proc_bsdinfo {
    uint32_t pbi_flags;
    uint32_t pbi_status;
    uint32_t pbi_xstatus;
    uint32_t pbi_pid;
    uint32_t pbi_ppid;
    uid_t pbi_uid;
    gid_t pbi_gid;
    uid_t pbi_ruid;
    gid_t pbi_rgid;
    uid_t pbi_svuid;
    gid_t pbi_svgid;
    uint32_t rfu_1;
    char pbi_comm[MAXCOMLEN];
    char pbi_name[2 * MAXCOMLEN];
    uint32_t pbi_nfiles;
    uint32_t pbi_pgid;
    uint32_t pbi_pjobc;
    uint32_t e_tdev;
    uint32_t e_tpgid;
    int32_t pbi_nice;
    uint64_t pbi_start_tvsec;
    uint64_t pbi_start_tvusec;
};
static_assert(sizeof(struct proc_bsdinfo) == 136, "the size that the kernel fills");

typedef void* rusage_info_t;
#define RUSAGE_INFO_V2 2

struct rusage_info_v2 {
    unsigned char ri_bytes[144]; // none of it is used
    uint64_t ri_diskio_bytesread;
    uint64_t ri_diskio_byteswritten;
};

struct proc_fdinfo {
    int32_t proc_fd;
    uint32_t proc_fdtype;
};

struct proc_fileinfo {
    uint32_t fi_openflags;
    uint32_t fi_status;
    int64_t fi_offset;
    int32_t fi_type;
    uint32_t fi_guardflags;
};

struct vnode_info {
    unsigned char vi_bytes[152]; // none of it is used
};

struct vnode_info_path {
    struct vnode_info vip_vi;
    char vip_path[MAXPATHLEN];
};

struct vnode_fdinfowithpath {
    struct proc_fileinfo pfi;
    struct vnode_info_path pvip;
};

extern "C" {
int proc_listallpids(void* buffer, int size);
int proc_pidinfo(int pid, int flavor, uint64_t arg, void* buffer, int size);
int proc_pidfdinfo(int pid, int fd, int flavor, void* buffer, int size);
int proc_pid_rusage(int pid, int flavor, rusage_info_t* buffer);
int proc_pidpath(int pid, void* buffer, uint32_t size);
}
