// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "platform/process/ChildProcess.h"

#include <algorithm>
#include <cerrno>
#include <crt_externs.h>
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <sys/event.h>
#include <unistd.h>

namespace selvane::process {
namespace {

/// Whether the queue will report the end of that process.
bool watchEnd(int queue, pid_t process) {
    struct kevent watched = {};
    EV_SET(&watched, static_cast<uintptr_t>(process), EVFILT_PROC, EV_ADD | EV_ONESHOT, NOTE_EXIT, 0,
           nullptr);
    return ::kevent(queue, &watched, 1, nullptr, 0, nullptr) == 0;
}

/// The first process to end; -1 if that can't be determined.
pid_t firstEnd(int queue) {
    struct kevent happened = {};
    int count = -1;
    do {
        count = ::kevent(queue, nullptr, 0, &happened, 1, nullptr);
    } while (count < 0 && errno == EINTR);
    return count == 1 ? static_cast<pid_t>(happened.ident) : -1;
}

/// Waits while `worker` runs, and ends it if `parent` ends first.
[[noreturn]] void standBetween(pid_t parent, pid_t worker) {
    const int queue = ::kqueue();
    const bool parentLives = queue >= 0 && watchEnd(queue, parent);
    // A process that can't be watched has just ended.
    if (!parentLives || (watchEnd(queue, worker) && firstEnd(queue) == parent))
        ::kill(worker, SIGTERM);
    int status = 0;
    ::_exit(waitFor(worker, status, 0) == worker ? exitStatus(status) : EXIT_FAILURE);
}

} // namespace

/// Only an executable can use the variable itself, and this code is also part of a module.
char** environmentBlock() {
    return *_NSGetEnviron();
}

bool openPipe(std::array<int, 2>& ends) {
    if (::pipe(ends.data()) != 0)
        return false;
    for (const int end : ends)
        ::fcntl(end, F_SETFD, FD_CLOEXEC);
    return true;
}

pid_t forkPlainly() {
    return ::fork();
}

void closeBetween(unsigned int first, unsigned int last) {
    constexpr unsigned int kMost = 65536;
    const unsigned int end = std::min(static_cast<unsigned int>(std::max(::getdtablesize(), 0)), kMost);
    for (unsigned int number = first; number < end && number <= last; ++number)
        ::close(static_cast<int>(number));
}

bool endWith(pid_t parent, int report) {
    const pid_t worker = ::fork();
    if (worker > 0) {
        ::close(report);
        standBetween(parent, worker);
    }
    return worker == 0;
}

} // namespace selvane::process
