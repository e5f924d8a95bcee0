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

/// What Selvane recorded about a copy of Claude Desktop when it opened it.
struct LaunchNote {
    OpenedApplication opened;
    std::string profile;               ///< its id
    std::string dataDir;               ///< normalized
    std::optional<std::string> config; ///< its CLAUDE_CONFIG_DIR, normalized

    bool operator==(const LaunchNote&) const = default;
};

/// Notes of all launches whose copies may still be running. They are kept in the user's runtime folder and
/// are valid only until the next boot. They are optional: notes that can't be written or read are skipped.
class LaunchNotes {
public:
    explicit LaunchNotes(Environment environment) : m_environment(std::move(environment)) {}

    void add(const LaunchNote& note) const;
    void remove(const LaunchNote& note) const;
    /// The notes written since the last boot; removes older ones.
    std::vector<LaunchNote> all() const;

private:
    const Environment m_environment;
};

} // namespace selvane
