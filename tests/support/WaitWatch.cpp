// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "support/WaitWatch.h"

#include <atomic>
#include <cerrno>
#include <fcntl.h>
#include <string>
#include <sys/file.h>
#include <sys/syscall.h>
#include <unistd.h>

#include "platform/files/Descriptor.h"

namespace selvane::test {
namespace {

thread_local WaitWatch::For watched;
thread_local WaitWatch::Look lookOn;

std::atomic<const char*> failingName = nullptr;
std::atomic<int> closeError = 0;

std::filesystem::path pathOf(int file) {
    std::error_code unknown;
    return std::filesystem::read_symlink("/proc/self/fd/" + std::to_string(file), unknown);
}

void announce(WaitWatch::For what, int file) {
    if (lookOn && what == watched)
        lookOn(pathOf(file));
}

} // namespace

WaitWatch::WaitWatch(For what, Look look) {
    watched = what;
    lookOn = std::move(look);
}

WaitWatch::~WaitWatch() {
    lookOn = nullptr;
}

FailingClose::FailingClose(const char* name, int error) {
    closeError = error;
    failingName = name;
}

FailingClose::~FailingClose() {
    failingName = nullptr;
}

bool isLocked(const std::filesystem::path& folder) {
    const files::Descriptor open(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    return ::syscall(SYS_flock, open.get(), LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK;
}

} // namespace selvane::test

// The core calls these instead of those of the C library, as they stand in the executable.
extern "C" int fsync(int file) {
    selvane::test::announce(selvane::test::WaitWatch::For::disk, file);
    return static_cast<int>(::syscall(SYS_fsync, file));
}

extern "C" int syncfs(int file) noexcept {
    selvane::test::announce(selvane::test::WaitWatch::For::disk, file);
    return static_cast<int>(::syscall(SYS_syncfs, file));
}

extern "C" int close(int file) {
    const char* const name = selvane::test::failingName;
    const bool fails = name != nullptr && (::fcntl(file, F_GETFL) & O_ACCMODE) != O_RDONLY &&
                       selvane::test::pathOf(file).filename().native().starts_with(name);
    const int result = static_cast<int>(::syscall(SYS_close, file));
    if (!fails)
        return result;
    errno = selvane::test::closeError;
    return -1;
}

extern "C" int flock(int file, int operation) noexcept {
    selvane::test::announce(selvane::test::WaitWatch::For::lock, file);
    return static_cast<int>(::syscall(SYS_flock, file, operation));
}
