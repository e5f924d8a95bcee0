// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "store/ProfileLocations.h"

#include "desktop/ClaudeApp.h"
#include "platform/files/Locations.h"
#include "platform/files/NormalizedPath.h"

namespace selvane {
namespace {

namespace fs = std::filesystem;

/// Links and logins are tied to the spelling.
fs::path location(const Environment& environment, const std::string& variable, const fs::path& standard) {
    const auto entry = environment.find(variable);
    return normalizedPath(entry == environment.end() || entry->second.empty() ? standard
                                                                              : fs::path(entry->second));
}

} // namespace

ProfileLocations::ProfileLocations(const Environment& environment, const ClaudeApp& claude)
    : m_claude(claude), m_environment(environment), m_home(normalizedPath(homeFolder(environment))),
      m_root(location(environment, "CLAUDE_LAUNCHER_ROOT", m_home / ".claude-profiles")),
      m_defaultDir(location(environment, "CLAUDE_LAUNCHER_DEFAULT_DIR", m_home / ".claude")),
      m_defaultGlobalJSON(location(environment, "CLAUDE_LAUNCHER_DEFAULT_JSON", m_home / ".claude.json")),
      m_testMode(environment.contains("CLAUDE_LAUNCHER_DESKTOP_DIR")) {}

ProfileLocations::ProfileLocations(const ProfileLocations& other)
    : m_claude(other.m_claude), m_environment(other.m_environment), m_home(other.m_home),
      m_root(other.m_root), m_defaultDir(other.m_defaultDir), m_defaultGlobalJSON(other.m_defaultGlobalJSON),
      m_testMode(other.m_testMode) {}

fs::path ProfileLocations::liveDesktopDir() const {
    const std::lock_guard guard(m_liveDesktopDirMutex);
    if (!m_liveDesktopDir.empty())
        return m_liveDesktopDir;
    const auto entry = m_environment.find("CLAUDE_LAUNCHER_DESKTOP_DIR");
    if (entry != m_environment.end() && !entry->second.empty())
        return m_liveDesktopDir = normalizedPath(entry->second);
    bool isSettled = true; // installing the application can still change it
    const auto isInstalled = [&] { return isSettled = m_claude.application().has_value(); };
    fs::path folder = normalizedPath(applicationDataFolder(m_environment, "Claude", isInstalled));
    if (isSettled)
        m_liveDesktopDir = folder;
    return folder;
}

} // namespace selvane
