// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "platform/process/Process.h"
#include "platform/process/Workspace.h"

namespace selvane {

/// What Selvane wrote down of a copy of Claude Desktop when it opened it.
struct LaunchNote {
    OpenedApplication opened;
    std::string profile;               ///< its id
    std::string dataDir;               ///< normalized
    std::optional<std::string> config; ///< the CLAUDE_CONFIG_DIR that it was given, normalized

    bool operator==(const LaunchNote&) const = default;
};

/// The notes of all launches whose copies may still run. They lie in the user's runtime folder, and hold only
/// until the system restarts. They are a help: where they can't be written or read there are none.
class LaunchNotes {
public:
    explicit LaunchNotes(Environment environment) : m_environment(std::move(environment)) {}

    void add(const LaunchNote& note) const;
    void remove(const LaunchNote& note) const;
    /// Those of this run of the system; removes what is left of an earlier one.
    std::vector<LaunchNote> all() const;

private:
    const Environment m_environment;
};

} // namespace selvane
