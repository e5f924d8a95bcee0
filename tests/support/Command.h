// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "platform/Process.h"
#include "support/TemporaryFolder.h"

namespace selvane::test {

/// What a run of the real executable gave.
struct Outcome {
    int status = 0; ///< 128 and the signal's number when a signal ended it
    std::string out;
    std::string err;
};

/// A throw-away home in which the real executable runs.
class CommandHome {
public:
    CommandHome();

    std::filesystem::path operator/(const std::filesystem::path& path) const { return m_folder / path; }
    const std::filesystem::path& path() const { return m_folder.path(); }

    /// Added to the environment of later runs, which otherwise holds only HOME and PATH.
    Environment environment;

    /// Runs `selvane` with these arguments; the test fails when it takes over a minute.
    Outcome run(const std::vector<std::string>& arguments) const;
    /// The same as a user without privileges, to whom the whole home is handed over first.
    Outcome runUnprivileged(const std::vector<std::string>& arguments) const;
    /// The output of a run that must succeed.
    std::string output(const std::vector<std::string>& arguments) const;

private:
    Outcome runProgram(const std::vector<std::string>& words) const;

    TemporaryFolder m_folder;
};

} // namespace selvane::test
