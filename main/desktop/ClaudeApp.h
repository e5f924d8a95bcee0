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

#include "desktop/DataFolders.h"
#include "desktop/LaunchNotes.h"
#include "desktop/OpenCopies.h"
#include "model/Profile.h"
#include "platform/process/Clock.h"
#include "platform/process/ProcInfo.h"
#include "platform/process/Workspace.h"

namespace selvane {

class ProfileStore;

/// The Claude Desktop application: where it is, which copies run and for whom, how to start and end them.
/// It keeps no state; every question is answered from the system at the moment of asking.
class ClaudeApp {
public:
    static constexpr std::string_view kBundleId = "com.anthropic.claudefordesktop";
    static constexpr std::chrono::milliseconds kQuitTimeout{20'000};
    static constexpr std::chrono::milliseconds kForcedQuitTimeout{3'000};
    static constexpr std::chrono::milliseconds kPollInterval{250};
    /// How long a new copy may take to show what it uses.
    static constexpr std::chrono::milliseconds kOpeningTimeout{3'000};
    static constexpr std::chrono::milliseconds kOpeningPollInterval{50};
    /// How long the helpers of a copy that has ended may take to end, too.
    static constexpr std::chrono::milliseconds kLeavingTimeout{2'000};

    using Instance = OpenCopy;

    enum class QuitKind { polite, forced };

    /// How the system knows the application, for `makeWorkspace`.
    static ApplicationIdentity identity();

    /// `environment` is the user's session, which says where the notes of launches lie.
    ClaudeApp(Workspace& workspace, Clock& clock, const Environment& environment);

    std::optional<Application> application() const; ///< nothing when not installed
    Application requireApplication() const;         ///< throws when not installed
    /// The copies that run, one per main process.
    std::vector<Instance> instances(const DataFolders& folders) const;
    /// Every process that belongs to the data folder `dataDir`, but this one.
    std::vector<ProcInfo> processes(const std::filesystem::path& dataDir, const DataFolders& folders) const;
    /// Every process whose executable belongs to Claude Desktop or lies in one of the data folders.
    std::vector<ProcInfo> allProcesses(const DataFolders& folders) const;

    void activate(const Instance& instance) const;
    /// Asks the copies to end and waits until all have and `until` holds, at most `timeout` (a forced quit:
    /// three seconds at most). False when they haven't by then. Blocks.
    bool quit(const std::vector<Instance>& instances, QuitKind kind, std::chrono::milliseconds timeout,
              const std::function<bool()>& until) const;
    /// Brings the profile up to date, opens a new copy for it and looks, three seconds at most, until that
    /// shows its data folder. Throws when nothing was opened, and when the copy that was opened uses another
    /// data folder or configuration; that one stays open. Blocks.
    void launch(const Profile& profile, ProfileStore& store) const;

private:
    /// The machine at one moment.
    struct Look {
        std::vector<ProcInfo> processes;
        std::vector<Instance> copies;
    };
    Look look(const DataFolders& folders) const;
    CopyEvidence evidence(const std::vector<ProcInfo>& processes, std::vector<LaunchNote> notes,
                          const DataFolders& folders) const;
    void requireFree(const Profile& profile, const ProfileStore& store) const;
    void awaitCopy(const LaunchNote& note, const Profile& profile, const ProfileStore& store,
                   const std::filesystem::path& executable) const;

    Workspace& m_workspace;
    Clock& m_clock;
    const LaunchNotes m_notes;
};

/// The processes of `all` that belong to the data folder `dataDir` (normalized): by the place of their
/// executable, by an argument, or because one of `roots` is among their ancestors.
std::vector<ProcInfo> processesOf(const std::string& dataDir, const std::vector<std::int32_t>& roots,
                                  const std::vector<ProcInfo>& all, const DataFolders& folders);

} // namespace selvane
