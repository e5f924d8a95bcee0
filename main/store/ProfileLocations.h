// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <filesystem>
#include <mutex>

#include "platform/process/Process.h"

namespace selvane {

class ClaudeApp;

/// Where the profiles and Claude's own configuration are, as the environment says. Paths are absolute and
/// always spelled the same way.
class ProfileLocations {
public:
    ProfileLocations(const Environment& environment, const ClaudeApp& claude);
    ProfileLocations(const ProfileLocations& other);
    ProfileLocations& operator=(const ProfileLocations&) = delete;

    const std::filesystem::path& home() const { return m_home; }
    const std::filesystem::path& root() const { return m_root; }
    const std::filesystem::path& defaultDir() const { return m_defaultDir; }
    const std::filesystem::path& defaultGlobalJSON() const { return m_defaultGlobalJSON; }
    /// The data folder that Claude Desktop uses unless told otherwise.
    std::filesystem::path liveDesktopDir() const;
    /// Set when a substitute data folder is in use: processes are never looked at, and Claude Desktop counts
    /// as not running.
    bool testMode() const { return m_testMode; }

protected:
    ~ProfileLocations() = default;
    const Environment& environment() const { return m_environment; }
    const ClaudeApp& claude() const { return m_claude; }

private:
    const ClaudeApp& m_claude;
    const Environment m_environment;
    const std::filesystem::path m_home;
    const std::filesystem::path m_root;
    const std::filesystem::path m_defaultDir;
    const std::filesystem::path m_defaultGlobalJSON;
    const bool m_testMode;
    // Determined on first use, as it may take a search for the installed application.
    mutable std::mutex m_liveDesktopDirMutex;
    mutable std::filesystem::path m_liveDesktopDir; ///< empty until it can no longer change
};

} // namespace selvane
