// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <array>
#include <cstddef>
#include <sys/types.h>

/// What happens between fork() and exec(). Only async-signal-safe calls are allowed there, as another thread
/// may have held any lock. So everything is prepared beforehand.
namespace selvane::process {

/// What a child reports through its pipe: what it has started, and what went wrong.
struct Message {
    enum class Stage : int { started, folder, executable, exit };
    Stage stage;
    int value; ///< a process id, an errno or, for `exit`, the exit status
};

/// A program to start.
struct Plan {
    const char* executable;
    const char* folder; ///< to start in; empty to stay in the current one
    char* const* arguments;
    char* const* environment;
    char* pidText; ///< where in the environment to put the child's own process id, or null
};

/// Room for a process id and the NUL.
constexpr std::size_t kPidTextSize = 12;

/// The exit status as a shell shows it: 128 plus the signal number if a signal ended the process.
int exitStatus(int waitStatus);
/// waitpid(), retried when a signal interrupts it.
pid_t waitFor(pid_t child, int& status, int options);
/// fork() in such a way that the child runs none of this process's signal handlers.
pid_t forkQuietly();

/// Call in the child of forkQuietly(). `report` must be above the standard streams and close on exec.
[[noreturn]] void becomeAttached(const Plan& plan, int report, pid_t parent);
/// The same for a program that outlives its parent: starts it and watches its first moments.
[[noreturn]] void startAndWatch(const Plan& plan, int report);

// ---- What each system does in its own way

/// The environment of this process, in the kernel's form.
char** environmentBlock();
/// A pipe whose ends close on exec. False, with errno, on failure.
bool openPipe(std::array<int, 2>& ends);
/// fork() without any handlers that the system lets us skip.
pid_t forkPlainly();
/// Closes the files with these numbers, including `last`.
void closeBetween(unsigned int first, unsigned int last);
/// Call in the child of forkQuietly(): makes it end when `parent` does. On a system without a call for that,
/// it forks again and returns only in the new child; the process in between closes `report`, waits and ends
/// with the same exit status. False, with errno, on failure.
bool endWith(pid_t parent, int report);

} // namespace selvane::process
