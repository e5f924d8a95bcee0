// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <chrono>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "model/Profile.h"
#include "platform/Clock.h"
#include "platform/ProcInfo.h"
#include "platform/Workspace.h"

namespace selvane {

class ProfileStore;

/// The Claude Desktop application: where it is, which copies run and for whom, how to start and end them.
/// It keeps no state; every question is answered from the system at the moment of asking.
class ClaudeApp {
public:
    static constexpr std::string_view kBundleId = "com.anthropic.claudefordesktop";
    static constexpr std::string_view kDataDirSwitch = "--user-data-dir=";
    static constexpr std::chrono::milliseconds kQuitTimeout{20'000};
    static constexpr std::chrono::milliseconds kForcedQuitTimeout{3'000};
    static constexpr std::chrono::milliseconds kPollInterval{250};

    /// One running copy: its main process with the account and the configuration it uses.
    struct Instance {
        RunningApplication app;
        std::string dataDir;               ///< normalized
        std::optional<std::string> config; ///< its CLAUDE_CONFIG_DIR, normalized

        std::int32_t pid() const { return app.pid; }
        const std::optional<std::string>& configDir() const { return config; }
        bool operator==(const Instance&) const = default;
    };

    enum class QuitKind { polite, forced };

    /// How the system knows the application, for `makeWorkspace`.
    static ApplicationIdentity identity();

    ClaudeApp(Workspace& workspace, Clock& clock);

    /// Absolute, without "." and ".." parts, doubled or trailing slashes. Links are not resolved.
    static std::string normalized(const std::string& path);

    std::optional<Application> application() const; ///< nothing when not installed
    Application requireApplication() const;         ///< throws when not installed
    /// One per main process. Without a data-folder argument a copy uses `defaultDataDir`.
    std::vector<Instance> instances(const std::filesystem::path& defaultDataDir) const;
    /// Every process that belongs to that data folder, but this one.
    std::vector<ProcInfo> processes(const std::filesystem::path& dataDir,
                                    const std::filesystem::path& defaultDataDir) const;
    /// Every process whose executable belongs to Claude Desktop or lies in one of the data folders.
    std::vector<ProcInfo> allProcesses(const std::vector<std::filesystem::path>& dataDirs) const;

    void activate(const Instance& instance) const;
    /// Asks the copies to end and waits until all have and `until` holds, at most `timeout` (a forced quit:
    /// three seconds at most). False when they haven't by then. Blocks.
    bool quit(const std::vector<Instance>& instances, QuitKind kind, std::chrono::milliseconds timeout,
              const std::function<bool()>& until) const;
    /// Brings the profile up to date and opens a new copy for it. Blocks; nothing is opened on failure.
    void launch(const Profile& profile, ProfileStore& store) const;

private:
    std::vector<Instance> instancesAmong(const std::vector<ProcInfo>& processes,
                                         const std::filesystem::path& defaultDataDir) const;

    Workspace& m_workspace;
    Clock& m_clock;
};

/// The processes of `all` that belong to the data folder `dataDir` (normalized): by the place of their
/// executable, by an argument, or because one of `roots` is among their ancestors.
std::vector<ProcInfo> processesOf(const std::string& dataDir, const std::vector<std::int32_t>& roots,
                                  const std::vector<ProcInfo>& all);

} // namespace selvane
