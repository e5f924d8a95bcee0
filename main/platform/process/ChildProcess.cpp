// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "platform/process/ChildProcess.h"

#include <algorithm>
#include <cerrno>
#include <climits>
#include <csignal>
#include <fcntl.h>
#include <poll.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace selvane::process {
namespace {

constexpr int kWatchMilliseconds = 300;
constexpr int kStatusMilliseconds = 5;
constexpr int kNotStarted = 127;

void send(int report, Message::Stage stage, int value) {
    const Message message = {stage, value};
    // Less than PIPE_BUF is written in one piece. If no reader is left, there is nobody to tell.
    while (::write(report, &message, sizeof message) < 0 && errno == EINTR) {
    }
}

[[noreturn]] void giveUp(int report, Message::Stage stage, int error) {
    send(report, stage, error);
    ::_exit(kNotStarted);
}

void resetSignals() {
    struct sigaction standard = {};
    standard.sa_handler = SIG_DFL;
    for (int signal = 1; signal < NSIG; ++signal)
        ::sigaction(signal, &standard, nullptr);
    sigset_t none;
    sigemptyset(&none);
    ::sigprocmask(SIG_SETMASK, &none, nullptr);
}

/// Connects the standard streams to the null device and closes all other files except `report`.
void dropFiles(int report) {
    const int null = ::open("/dev/null", O_RDWR | O_CLOEXEC);
    if (null < 0)
        giveUp(report, Message::Stage::executable, errno);
    for (int stream = 0; stream <= 2; ++stream) {
        // dup2() onto itself would keep the close-on-exec flag.
        const int result = stream == null ? ::fcntl(null, F_SETFD, 0) : ::dup2(null, stream);
        if (result < 0)
            giveUp(report, Message::Stage::executable, errno);
    }
    const auto kept = static_cast<unsigned int>(report);
    closeBetween(3, kept - 1);
    closeBetween(kept + 1, UINT_MAX);
}

void writeNumber(char* text, unsigned int number) {
    char* end = text;
    do {
        *end++ = static_cast<char>('0' + number % 10);
        number /= 10;
    } while (number != 0);
    *end = '\0';
    std::reverse(text, end);
}

[[noreturn]] void execute(const Plan& plan, int report) {
    if (*plan.folder != '\0' && ::chdir(plan.folder) != 0)
        giveUp(report, Message::Stage::folder, errno);
    if (plan.pidText != nullptr)
        writeNumber(plan.pidText, static_cast<unsigned int>(::getpid()));
    ::execve(plan.executable, plan.arguments, plan.environment);
    giveUp(report, Message::Stage::executable, errno);
}

/// Reports a failure in the first moments. It polls, as waitpid() has no timeout.
void watch(pid_t child, int report) {
    for (int waited = 0; waited < kWatchMilliseconds; waited += kStatusMilliseconds) {
        int status = 0;
        if (waitFor(child, status, WNOHANG) == child) {
            if (exitStatus(status) != 0)
                send(report, Message::Stage::exit, exitStatus(status));
            return;
        }
        ::poll(nullptr, 0, kStatusMilliseconds);
    }
}

} // namespace

int exitStatus(int waitStatus) {
    return WIFSIGNALED(waitStatus) ? 128 + WTERMSIG(waitStatus) : WEXITSTATUS(waitStatus);
}

pid_t waitFor(pid_t child, int& status, int options) {
    pid_t result = -1;
    do {
        result = ::waitpid(child, &status, options);
    } while (result < 0 && errno == EINTR);
    return result;
}

pid_t forkQuietly() {
    sigset_t all;
    sigset_t before;
    sigfillset(&all);
    ::pthread_sigmask(SIG_SETMASK, &all, &before);
    const pid_t child = forkPlainly();
    const int error = errno;
    if (child != 0)
        ::pthread_sigmask(SIG_SETMASK, &before, nullptr);
    errno = error;
    return child;
}

void becomeAttached(const Plan& plan, int report, pid_t parent) {
    resetSignals();
    dropFiles(report);
    ::umask(S_IRWXG | S_IRWXO);
    if (!endWith(parent, report))
        giveUp(report, Message::Stage::executable, errno);
    execute(plan, report);
}

void startAndWatch(const Plan& plan, int report) {
    resetSignals();
    dropFiles(report);
    const pid_t child = forkPlainly();
    if (child < 0)
        giveUp(report, Message::Stage::executable, errno);
    if (child == 0) {
        ::setsid();
        execute(plan, report);
    }
    send(report, Message::Stage::started, child);
    watch(child, report);
    ::_exit(0);
}

} // namespace selvane::process
