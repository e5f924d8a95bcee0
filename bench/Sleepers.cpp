// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

// sleepers COUNT: keeps COUNT idle processes until its standard input ends. Prints "ready" once they run.

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

int main(int argc, char** argv) {
    const int count = argc > 1 ? std::atoi(argv[1]) : 0;
    const pid_t self = getpid();
    for (int i = 0; i < count; ++i) {
        const pid_t child = fork();
        if (child < 0) {
            std::perror("fork");
            kill(0, SIGKILL); // the group contains only this program and its children
        }
        if (child > 0)
            continue;
        prctl(PR_SET_PDEATHSIG, SIGKILL);
        if (getppid() != self)
            _exit(1);
        close(STDIN_FILENO);
        for (;;)
            pause();
    }
    std::puts("ready");
    std::fflush(stdout);
    char byte = 0;
    while (read(STDIN_FILENO, &byte, 1) > 0) {
    }
    // The children end with this process.
    return 0;
}
