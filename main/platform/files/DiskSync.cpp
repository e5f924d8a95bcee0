// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "platform/files/DiskSync.h"

#include <algorithm>
#include <sys/stat.h>

namespace selvane::files {
namespace {

/// From this many on, one wait for the whole file system costs less.
constexpr std::size_t kFew = 8;

/// Names may be made in a folder that can't be read; nobody can wait for those.
Descriptor openFolder(const std::filesystem::path& folder) {
    return Descriptor(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
}

} // namespace

int DiskSync::add(Descriptor file) {
    bool together = false;
    if (keep(file, together))
        return 0;
    const int error = together ? startWriting(file.get()) : syncOne(file.get());
    const int closing = file.closeReporting();
    return error != 0 ? error : closing;
}

int DiskSync::addFolder(const std::filesystem::path& folder) {
    Descriptor open = openFolder(folder);
    return open ? add(std::move(open)) : 0;
}

bool DiskSync::keep(Descriptor& file, bool& together) {
    struct stat status = {};
    if (::fstat(file.get(), &status) != 0)
        status = {}; // an open file always has a status; otherwise it counts as on a disk of its own
    const std::lock_guard guard(m_mutex);
    auto disk = std::find_if(m_disks.begin(), m_disks.end(),
                             [&](const Disk& known) { return known.device == status.st_dev; });
    if (disk == m_disks.end())
        disk = m_disks.insert(m_disks.end(), Disk{status.st_dev, {}, false, canSyncTogether(file.get())});
    together = disk->together;
    if (S_ISDIR(status.st_mode)) {
        const auto same = [&](const Kept& kept) { return kept.inode == status.st_ino; };
        if (std::any_of(disk->kept.begin(), disk->kept.end(), same)) {
            file.close();
            return true;
        }
    }
    if (disk->kept.size() >= kFew) {
        disk->hasMore = true;
        return false;
    }
    disk->kept.push_back({std::move(file), status.st_ino});
    return true;
}

int DiskSync::wait() {
    std::vector<Disk> disks;
    {
        const std::lock_guard guard(m_mutex);
        disks.swap(m_disks);
    }
    int error = 0;
    for (Disk& disk : disks) {
        if (const int failed = wait(disk); error == 0)
            error = failed;
    }
    return error;
}

int DiskSync::wait(Disk& disk) {
    int error = 0;
    const auto note = [&](int failed) { error = error == 0 ? failed : error; };
    const bool together = disk.hasMore && disk.together;
    for (const Kept& kept : disk.kept)
        note(together ? startWriting(kept.file.get()) : syncOne(kept.file.get()));
    // This also reports what couldn't be written since the first of these files was opened.
    if (together)
        note(syncTogether(disk.kept.front().file.get()));
    for (Kept& kept : disk.kept)
        note(kept.file.closeReporting());
    return error;
}

void DiskSync::waitFor(const std::filesystem::path& path) {
    if (const int error = wait(); error != 0)
        fail("write", path, error);
}

int syncFolder(const std::filesystem::path& folder) {
    const Descriptor open = openFolder(folder);
    return open ? syncOne(open.get()) : 0;
}

int syncAllWith(const std::filesystem::path& folder) {
    const Descriptor open = openFolder(folder);
    if (!open)
        return 0;
    return canSyncTogether(open.get()) ? syncTogether(open.get()) : syncOne(open.get());
}

} // namespace selvane::files
