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
#include "desktop/ProfileEntries.h"
#include "desktop/SignInLink.h"
#include "model/Profile.h"
#include "platform/process/Clock.h"
#include "platform/process/ProcInfo.h"
#include "platform/process/Workspace.h"

namespace selvane {

class ProfileStore;

/// The Claude Desktop application: where it is, which copies are running and for whom, how to start and end
/// them. It keeps no state: every answer comes from the system at that moment.
class ClaudeApp {
public:
    static constexpr std::string_view kBundleId = "com.anthropic.claudefordesktop";
    static constexpr std::chrono::milliseconds kQuitTimeout{20'000};
    static constexpr std::chrono::milliseconds kForcedQuitTimeout{3'000};
    static constexpr std::chrono::milliseconds kPollInterval{250};
    /// How long a new copy may take to show its data folder.
    static constexpr std::chrono::milliseconds kOpeningTimeout{3'000};
    static constexpr std::chrono::milliseconds kOpeningPollInterval{50};
    /// How long to wait for the helpers of a copy that has ended.
    static constexpr std::chrono::milliseconds kLeavingTimeout{2'000};

    using Instance = OpenCopy;

    enum class QuitKind { polite, forced };

    /// The names by which the system knows the application, for `makeWorkspace`.
    static ApplicationIdentity identity();

    /// `environment` is that of the user's session: it says where the launch notes and the entries among the
    /// desktop's applications are.
    ClaudeApp(Workspace& workspace, Clock& clock, const Environment& environment);

    std::optional<Application> application() const; ///< nothing if not installed
    Application requireApplication() const;         ///< throws if not installed
    /// The running copies, one per main process.
    std::vector<Instance> instances(const DataFolders& folders) const;
    /// Every process that uses the data folder `dataDir`, except this one.
    std::vector<ProcInfo> processes(const std::filesystem::path& dataDir, const DataFolders& folders) const;
    /// Every process whose executable is Claude Desktop's or is inside a data folder.
    std::vector<ProcInfo> allProcesses(const DataFolders& folders) const;

    /// The profiles that have an entry of their own among the desktop's applications.
    const ProfileEntries& entries() const { return m_entries; }

    /// Asks for the copy's window to come to the front. False if the window system doesn't allow that.
    bool activate(const Instance& instance) const;
    /// Asks the copies to end, then waits until they all have and `until` holds, for `timeout` at most (three
    /// seconds if forced). Returns false if time runs out. Blocks.
    bool quit(const std::vector<Instance>& instances, QuitKind kind, std::chrono::milliseconds timeout,
              const std::function<bool()>& until) const;
    /// Brings the profile up to date, opens a new copy with it and waits up to three seconds for the copy to
    /// show its data folder. Throws if nothing was opened, or if the copy uses another data folder or
    /// configuration; that copy stays open. `start` holds variables for this one start, such as what lets the
    /// new window come to the front. The copy gets `link`, if there is one, as its last argument; and if the
    /// profile has an entry of its own among the applications, its windows get that entry's class. Blocks.
    void launch(const Profile& profile, ProfileStore& store, const Environment& start = {},
                const std::optional<SignInLink>& link = {}) const;
    /// Hands a sign-in over to an open copy: starts the application as for a second copy with the same data
    /// folder and configuration, which passes its arguments on to the first and ends. Doesn't wait for that.
    /// Throws if the copy has ended, or if it isn't known which data folder it uses. `normalDir` is the
    /// normal data folder. Nothing is recorded.
    void passOn(const SignInLink& link, const Instance& copy, const std::filesystem::path& normalDir) const;

private:
    /// The state of the machine at one moment.
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
    const ProfileEntries m_entries;
};

/// The processes in `all` that belong to the data folder `dataDir` (normalized): their executable is inside
/// it, an argument names it, or they are one of `roots` or a descendant of one.
std::vector<ProcInfo> processesOf(const std::string& dataDir, const std::vector<std::int32_t>& roots,
                                  const std::vector<ProcInfo>& all, const DataFolders& folders);

} // namespace selvane
