// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <array>
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <linux/close_range.h>
#include <string>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

#include "platform/process/Workspace.h"
#include "support/Pointers.h"

namespace selvane::test {

/// A real process with these arguments and this environment. It does nothing and has no files open for as
/// long as this object lives. `name` is what it calls itself, `script` what it runs in the shell; that ends
/// with its input.
class RunningProcess {
public:
    RunningProcess(const std::vector<std::string>& arguments, const Environment& environment,
                   const std::string& name = "sh", const std::string& script = "read line") {
        // Not before the shell runs does the system show what it was started with.
        std::vector<std::string> texts = {name, "-c", "exec >&-; " + script, "sh"};
        texts.insert(texts.end(), arguments.begin(), arguments.end());
        std::vector<std::string> variables;
        for (const auto& [variable, value] : environment)
            variables.push_back(variable + "=" + value);
        std::array<int, 2> input = {}, started = {};
        if (pipe2(input.data(), O_CLOEXEC) != 0 || pipe2(started.data(), O_CLOEXEC) != 0)
            std::abort();
        m_input = input[1];
        m_pid = fork();
        if (m_pid == 0) {
            dup2(input[0], STDIN_FILENO);
            dup2(started[1], STDOUT_FILENO);
            close(STDERR_FILENO);
            close_range(STDERR_FILENO + 1, ~0U, CLOSE_RANGE_CLOEXEC);
            execve("/bin/sh", pointers(texts).data(), pointers(variables).data());
            _exit(127);
        }
        close(input[0]);
        close(started[1]);
        char none = 0;
        static_cast<void>(!read(started[0], &none, 1)); // returns when the shell has closed its output
        close(started[0]);
    }
    RunningProcess(const RunningProcess&) = delete;
    RunningProcess& operator=(const RunningProcess&) = delete;
    ~RunningProcess() {
        kill(m_pid, SIGKILL);
        waitpid(m_pid, nullptr, 0);
        close(m_input);
    }

    pid_t pid() const { return m_pid; }
    RunningApplication app() const { return {m_pid, ProcInfo::read(m_pid)->startTime}; }

private:
    pid_t m_pid = 0;
    int m_input = -1;
};

} // namespace selvane::test
