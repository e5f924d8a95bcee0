// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <array>
#include <cstddef>
#include <sys/types.h>

/// What happens between fork() and exec(). Only async-signal-safe calls are allowed there, because another
/// thread may have held any lock, so that everything is prepared before.
namespace selvane::process {

/// What a child tells through its pipe: what it has started, and what went wrong.
struct Message {
    enum class Stage : int { started, folder, executable, exit };
    Stage stage;
    int value; ///< a process id, an errno, for `exit` the exit status
};

/// A program to start.
struct Plan {
    const char* executable;
    const char* folder; ///< to start in; empty to stay in the present one
    char* const* arguments;
    char* const* environment;
    char* pidText; ///< a part of the environment where the child's own process id belongs, or null
};

/// Room for a process id and the NUL.
constexpr std::size_t kPidTextSize = 12;

/// The exit status that a shell shows: 128 plus the signal when one ended it.
int exitStatus(int waitStatus);
/// waitpid() that no signal interrupts.
pid_t waitFor(pid_t child, int& status, int options);
/// fork(), after which no signal handler of this process runs in the child.
pid_t forkQuietly();

/// In the child of forkQuietly(). `report` must lie above the standard streams and close on exec.
[[noreturn]] void becomeAttached(const Plan& plan, int report, pid_t parent);
/// The same for a program that outlives its parent: starts it, and watches its first moments.
[[noreturn]] void startAndWatch(const Plan& plan, int report);

// ---- What each system does in its own way

/// The environment of this process, as the kernel takes it.
char** environmentBlock();
/// A pipe whose ends close on exec. False, and errno, on failure.
bool openPipe(std::array<int, 2>& ends);
/// fork() without more than the system needs.
pid_t forkPlainly();
/// Closes the files of these numbers, the last one included.
void closeBetween(unsigned int first, unsigned int last);
/// In the child of forkQuietly(): from here on it ends when `parent` does. Where the system has no way to say
/// so, it goes on as another process, whose exit status the one in its place ends with, without `report`.
/// False, and errno, on failure.
bool endWith(pid_t parent, int report);

} // namespace selvane::process
