// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "end-to-end/Program.h"

#include <csignal>
#include <fcntl.h>
#include <stdexcept>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include "support/Home.h"
#include "support/InstalledClaude.h"
#include "support/Pointers.h"

namespace selvane::test {

Program::Program(std::vector<std::string> words, const Environment& environment,
                 const std::filesystem::path& folder)
    : m_name(std::filesystem::path(words[0]).filename()), m_folder(folder) {
    std::vector<std::string> variables;
    for (const auto& [name, value] : environment)
        variables.push_back(name + "=" + value);
    const auto arguments = pointers(words);
    const auto names = pointers(variables);
    const std::string outputFile = m_folder / (m_name + ".out");
    const std::string errorFile = m_folder / (m_name + ".err");
    const pid_t test = getpid();
    m_pid = fork();
    if (m_pid == 0) {
        prctl(PR_SET_PDEATHSIG, SIGTERM);
        if (getppid() != test)
            _exit(127);
        for (const auto& [stream, file] : {std::pair(STDOUT_FILENO, outputFile), {STDERR_FILENO, errorFile}})
            dup2(open(file.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0600), stream);
        execvpe(arguments[0], arguments.data(), names.data());
        _exit(127);
    }
}

Program::~Program() {
    if (status())
        return;
    kill(m_pid, SIGTERM);
    try {
        waitForEnd();
    } catch (const std::exception&) {
        kill(m_pid, SIGKILL);
        waitpid(m_pid, nullptr, 0);
    }
}

std::optional<int> Program::status() {
    int state = 0;
    if (!m_status && waitpid(m_pid, &state, WNOHANG) == m_pid)
        m_status = WIFEXITED(state) ? WEXITSTATUS(state) : 128 + WTERMSIG(state);
    return m_status;
}

int Program::waitForEnd() {
    waitUntil([this] { return status().has_value(); }, "the end of " + m_name);
    return *m_status;
}

std::string Program::firstLine() {
    const auto lineEnd = [this] { return output().find('\n'); };
    waitUntil(
        [&] {
            if (status())
                throw std::runtime_error(m_name + " ended: " + errors());
            return lineEnd() != std::string::npos;
        },
        "output of " + m_name);
    return output().substr(0, lineEnd());
}

std::string Program::output() const {
    return readFile(m_folder / (m_name + ".out"));
}

std::string Program::errors() const {
    return readFile(m_folder / (m_name + ".err"));
}

} // namespace selvane::test
