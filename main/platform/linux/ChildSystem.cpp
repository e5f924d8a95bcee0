// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "platform/process/ChildProcess.h"

#include <algorithm>
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <unistd.h>

namespace selvane::process {

char** environmentBlock() {
    return environ;
}

bool openPipe(std::array<int, 2>& ends) {
    return ::pipe2(ends.data(), O_CLOEXEC) == 0;
}

/// Unlike fork(), it runs no library handlers, which might wait for a lock.
pid_t forkPlainly() {
    return ::_Fork();
}

void closeBetween(unsigned int first, unsigned int last) {
    if (first > last || ::close_range(first, last, 0) == 0)
        return;
    // Kernels before 5.9.
    rlimit limit = {};
    ::getrlimit(RLIMIT_NOFILE, &limit);
    const rlim_t end = std::min<rlim_t>({limit.rlim_cur, rlim_t{last} + 1, 65536});
    for (rlim_t number = first; number < end; ++number)
        ::close(static_cast<int>(number));
}

bool endWith(pid_t parent, int /*report*/) {
    ::prctl(PR_SET_PDEATHSIG, SIGTERM);
    if (::getppid() != parent)
        ::_exit(EXIT_FAILURE); // the parent ended before the call above
    return true;
}

} // namespace selvane::process
