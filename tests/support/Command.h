// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <filesystem>
#include <iosfwd>
#include <memory>
#include <string>
#include <vector>

#include "platform/process/Clock.h"
#include "platform/process/Process.h"
#include "support/TemporaryFolder.h"

namespace selvane::test {

/// What a run of a command gave.
struct Outcome {
    int status = 0; ///< 128 plus the signal's number if a signal ended it
    std::string out;
    std::string err;

    bool operator==(const Outcome&) const = default;
    friend std::ostream& operator<<(std::ostream& out, const Outcome& outcome);
};

/// The result of a run that fails with this message.
Outcome failure(const std::string& message);

/// The test's home folder, empty at first, in which commands run: here in the test, or as processes of their
/// own where that is what a test is about.
class CommandHome {
public:
    CommandHome();

    std::filesystem::path operator/(const std::filesystem::path& path) const { return m_path / path; }
    const std::filesystem::path& path() const { return m_path; }

    /// The environment of later runs. Initially, no program is on its PATH and no desktop entry of the system
    /// is visible, so neither is a Claude Desktop installed on this machine.
    Environment environment;
    /// What later runs in the test wait with.
    std::shared_ptr<Clock> clock = std::make_shared<SystemClock>();

    /// What the windows would have shown in all runs in the test: "launch ID" or "error MESSAGE".
    std::shared_ptr<std::vector<std::string>> told = std::make_shared<std::vector<std::string>>();

    /// Runs a command in the test itself. None that draws.
    Outcome run(const std::vector<std::string>& arguments) const;
    /// The output of a run, which must succeed.
    std::string output(const std::vector<std::string>& arguments) const;

    /// Runs the real executable with these arguments; it is ended when it takes over a minute.
    Outcome execute(const std::vector<std::string>& arguments) const;
    /// The same as an unprivileged user, who is given the whole home first.
    Outcome runUnprivileged(const std::vector<std::string>& arguments) const;
    /// Runs a /bin/sh script in which "$selvane" is the executable.
    Outcome shell(const std::string& script) const;

private:
    Outcome runProgram(const std::vector<std::string>& words) const;

    std::filesystem::path m_path;
    TemporaryFolder m_session; ///< the session's runtime folder
};

} // namespace selvane::test
