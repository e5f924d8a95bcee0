// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <filesystem>
#include <mutex>
#include <sys/types.h>
#include <vector>

#include "platform/files/Descriptor.h"

namespace selvane::files {

/// Waits until new files and folders are on the disk: for a few one by one, for many through the whole file
/// system. It keeps only a few files open. May be used from several threads.
class DiskSync {
public:
    /// Takes over a complete new file, or a folder that has got all its entries. The system may start to
    /// write it. Returns 0 or an error: some file systems say only now that they couldn't take the content.
    int add(Descriptor file);
    /// The same for the folder at a path. One that can't be opened is no error.
    int addFolder(const std::filesystem::path& folder);
    /// Waits for all that was added, and forgets it. More may be added meanwhile; that is for the next wait.
    /// Returns 0 or the first error.
    int wait();
    /// The same, but throws an error that names `path`.
    void waitFor(const std::filesystem::path& path);

private:
    struct Kept {
        Descriptor file;
        ino_t inode = 0;
    };
    struct Disk {
        dev_t device = 0;
        std::vector<Kept> kept;
        bool hasMore = false;
        bool together = false; ///< whether it can be waited for as a whole
    };

    /// Takes over `file` if it is one of the few. Otherwise says whether its file system can be waited for as
    /// a whole.
    bool keep(Descriptor& file, bool& together);
    static int wait(Disk& disk);

    std::mutex m_mutex;
    std::vector<Disk> m_disks; ///< one for each file system, seldom more than one
};

/// Waits for the names in a folder. Returns 0 or the error; one that can't be opened is no error.
int syncFolder(const std::filesystem::path& folder);

/// Waits for everything in the file system of a folder. Otherwise the same.
int syncAllWith(const std::filesystem::path& folder);

// What differs between the systems (linux, macos).

/// Waits for one open file or folder. Returns 0 or the error.
int syncOne(int file);
/// Whether `startWriting` and `syncTogether` can take its place in the file system of an open file.
bool canSyncTogether(int file);
/// Lets the system write an open file, now or at the latest in `syncTogether`. Returns 0 or the error.
int startWriting(int file);
/// Waits for every file of the same file system that the system was let write. Returns 0 or the error.
int syncTogether(int file);

} // namespace selvane::files
