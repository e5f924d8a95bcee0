// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "platform/files/FolderLock.h"

#include <algorithm>
#include <string>
#include <sys/file.h>
#include <sys/stat.h>
#include <thread>
#include <utility>
#include <vector>

#include "model/LauncherError.h"
#include "platform/files/LockHolder.h"
#include "platform/files/Progress.h"
#include "platform/text/Text.h"

namespace selvane {

namespace {

using Identity = std::pair<dev_t, ino_t>;

/// What this thread has locked. A second lock on the same folder would wait for itself.
thread_local std::vector<Identity> heldHere;

thread_local bool isInHaste = false;

struct stat statusOf(int folder, const std::filesystem::path& path) {
    struct stat status = {};
    if (::fstat(folder, &status) != 0)
        files::fail("lock", path, errno);
    return status;
}

Identity identityOf(const struct stat& status) {
    return {status.st_dev, status.st_ino};
}

/// An open folder; none if there is nothing of that name or it isn't a folder.
files::Descriptor folderToLock(const std::filesystem::path& folder) {
    files::Descriptor open(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (!open && errno != ENOENT && errno != ENOTDIR)
        files::fail("lock", folder, errno);
    return open;
}

/// Whether the folder is locked now; false if somebody else has locked it.
bool tryLock(int folder, const std::filesystem::path& path) {
    while (::flock(folder, LOCK_EX | LOCK_NB) != 0) {
        if (errno == EWOULDBLOCK)
            return false;
        if (errno == ENOLCK || errno == ENOTSUP || errno == EOPNOTSUPP || errno == EINVAL || errno == ENOSYS)
            return true; // the file system has no locks
        if (errno != EINTR)
            files::fail("lock", path, errno);
    }
    return true;
}

/// Whether `folder` is still at `path`: it may have been moved while we waited for the lock.
bool isAt(const std::filesystem::path& path, const struct stat& folder) {
    struct stat there = {};
    return ::stat(path.c_str(), &there) == 0 && identityOf(there) == identityOf(folder);
}

[[noreturn]] void throwOccupied(const std::filesystem::path& folder, const struct stat& status) {
    std::string message = text::singleLine(folder.string()) + " è in uso";
    if (const auto holder = LockHolder::of(status)) {
        message += " da " + (holder->name.empty() ? "un altro programma" : text::singleLine(holder->name)) +
                   " (processo " + std::to_string(holder->pid) + (holder->isStopped ? ", fermo)" : ")");
    }
    throw FolderLock::Occupied(message + ": riprova quando ha finito");
}

} // namespace

FolderLock::Haste::Haste() {
    isInHaste = true;
}

FolderLock::Haste::~Haste() {
    isInHaste = false;
}

FolderLock::FolderLock(const std::filesystem::path& folder, const Progress* progress,
                       std::chrono::milliseconds patience) {
    constexpr auto kPause = std::chrono::milliseconds(5);
    const auto deadline = std::chrono::steady_clock::now() + patience;
    while ((m_folder = folderToLock(folder))) {
        const struct stat status = statusOf(m_folder.get(), folder);
        if (std::find(heldHere.begin(), heldHere.end(), identityOf(status)) != heldHere.end())
            throw LauncherError(text::singleLine(folder.string()) +
                                " porta a una cartella che questa stessa operazione sta già usando");
        while (!tryLock(m_folder.get(), folder)) {
            if (isInHaste || std::chrono::steady_clock::now() >= deadline)
                throwOccupied(folder, status);
            if (progress != nullptr)
                progress->requireWanted();
            std::this_thread::sleep_for(kPause);
        }
        if (isAt(folder, status)) {
            heldHere.push_back(identityOf(status));
            return;
        }
    }
}

FolderLock::~FolderLock() {
    struct stat status = {};
    if (!m_folder || ::fstat(m_folder.get(), &status) != 0)
        return;
    const auto held = std::find(heldHere.begin(), heldHere.end(), identityOf(status));
    if (held != heldHere.end())
        heldHere.erase(held);
}

std::optional<FolderLock> FolderLock::ifFree(const std::filesystem::path& folder) {
    FolderLock lock;
    lock.m_folder = folderToLock(folder);
    if (!lock.m_folder)
        return std::nullopt;
    const struct stat status = statusOf(lock.m_folder.get(), folder);
    if (!tryLock(lock.m_folder.get(), folder))
        return std::nullopt;
    heldHere.push_back(identityOf(status));
    return lock;
}

} // namespace selvane
