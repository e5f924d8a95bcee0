// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "platform/process/Process.h"

namespace selvane::test {

/// A program that runs beside the test: at most as long as this object, and never longer than the test.
class Program {
public:
    /// Its output goes to files in `folder`, named after the program.
    Program(std::vector<std::string> words, const Environment& environment,
            const std::filesystem::path& folder);
    Program(const Program&) = delete;
    Program& operator=(const Program&) = delete;
    /// Asks it to end and waits until it has.
    ~Program();

    /// Its exit status, or 128 plus the number of the signal that ended it; nothing while it is running.
    std::optional<int> status();
    /// Waits for it to end by itself.
    int waitForEnd();
    /// Waits for the first line of its output.
    std::string firstLine();
    std::string output() const;
    std::string errors() const;
    pid_t pid() const { return m_pid; }

private:
    std::string m_name;
    std::filesystem::path m_folder;
    pid_t m_pid = 0;
    std::optional<int> m_status;
};

} // namespace selvane::test
