// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <filesystem>
#include <iosfwd>
#include <string>
#include <vector>

#include "platform/process/Process.h"
#include "support/TemporaryFolder.h"

namespace selvane::test {

/// What a run of the real executable gave.
struct Outcome {
    int status = 0; ///< 128 and the signal's number when a signal ended it
    std::string out;
    std::string err;

    bool operator==(const Outcome&) const = default;
    friend std::ostream& operator<<(std::ostream& out, const Outcome& outcome);
};

/// What a run gives that fails with this message.
Outcome failure(const std::string& message);

/// A throw-away home in which the real executable runs.
class CommandHome {
public:
    CommandHome();

    std::filesystem::path operator/(const std::filesystem::path& path) const { return m_folder / path; }
    const std::filesystem::path& path() const { return m_folder.path(); }

    /// The environment of later runs. At first no program is on its PATH, and no desktop entry of
    /// the system is seen, so that a Claude Desktop installed on this machine isn't either.
    Environment environment;

    /// Runs `selvane` with these arguments; the test fails when it takes over a minute.
    Outcome run(const std::vector<std::string>& arguments) const;
    /// The same as a user without privileges, to whom the whole home is handed over first.
    Outcome runUnprivileged(const std::vector<std::string>& arguments) const;
    /// Runs a script of /bin/sh, in which "$selvane" is the executable.
    Outcome shell(const std::string& script) const;
    /// The output of a run that must succeed.
    std::string output(const std::vector<std::string>& arguments) const;

private:
    Outcome runProgram(const std::vector<std::string>& words) const;

    TemporaryFolder m_folder;
    TemporaryFolder m_session; ///< its runtime folder
};

} // namespace selvane::test
