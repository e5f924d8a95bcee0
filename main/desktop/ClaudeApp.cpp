// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "desktop/ClaudeApp.h"

#include <algorithm>
#include <set>
#include <unistd.h>

#include "desktop/ClaudeArguments.h"
#include "desktop/CopyEnvironment.h"
#include "model/LauncherError.h"
#include "platform/files/FolderLock.h"
#include "platform/files/NormalizedPath.h"
#include "platform/process/Machine.h"
#include "platform/process/ProcessFamily.h"
#include "store/ProfileStore.h"

namespace selvane {
namespace {

namespace fs = std::filesystem;

constexpr int kMaximumAncestors = 31;
constexpr std::string_view kMacInstallPrefix = "/Applications/Claude.app/";

/// A new copy must not inherit variables meant for Selvane or for the copy that started it.
bool isWithheld(std::string_view variable) {
    return variable == kConfigDirVariable || variable == "ELECTRON_RUN_AS_NODE" ||
           variable.starts_with("CLAUDE_LAUNCHER_");
}

OpenConfiguration configuration(const Profile& profile, const fs::path& dataDir, const fs::path& normalDir) {
    OpenConfiguration result;
    result.withholds = isWithheld;
    if (!profile.isDefault())
        result.environment[std::string(kConfigDirVariable)] = profile.configDir.string();
    if (dataDir != normalDir)
        result.arguments = {std::string(kDataDirSwitch) + dataDir.string()};
    return result;
}

/// Brings the files of a profile up to date for its launch; returns its data folder.
fs::path prepared(const Profile& profile, ProfileStore& store) {
    const fs::path dataDir = store.desktopDataDir(profile);
    store.sync(profile);
    store.flushPendingSessions(profile);
    FileManager().createFolders(dataDir, Privacy::ownerOnly);
    return dataDir;
}

} // namespace

std::vector<ProcInfo> processesOf(const std::string& dataDir, const std::vector<std::int32_t>& roots,
                                  const std::vector<ProcInfo>& all, const DataFolders& folders) {
    const ProcessFamily family(all);
    const auto isRoot = [&](const ProcInfo& process) {
        return std::find(roots.begin(), roots.end(), process.pid) != roots.end();
    };
    std::vector<ProcInfo> result;
    for (const ProcInfo& process : all) {
        if (process.path.starts_with(dataDir + "/") || namesDataFolder(process, dataDir, folders) ||
            isRoot(process) || family.ancestor(process, isRoot, kMaximumAncestors) != nullptr)
            result.push_back(process);
    }
    return result;
}

ApplicationIdentity ClaudeApp::identity() {
    return {{std::string(kBundleId), "com.anthropic.Claude", "claude-desktop"}, "claude-desktop"};
}

ClaudeApp::ClaudeApp(Workspace& workspace, Clock& clock, const Environment& environment)
    : m_workspace(workspace), m_clock(clock), m_notes(environment), m_entries(environment) {}

std::optional<Application> ClaudeApp::application() const {
    return m_workspace.application();
}

Application ClaudeApp::requireApplication() const {
    auto installed = application();
    if (!installed)
        throw NotInstalledError("Claude.app non trovata. Installala in /Applications.");
    return std::move(*installed);
}

CopyEvidence ClaudeApp::evidence(const std::vector<ProcInfo>& processes, std::vector<LaunchNote> notes,
                                 const DataFolders& folders) const {
    CopyEvidence evidence = {
        processes,           m_workspace.running(processes), std::move(notes), {}, hostName(), folders,
        &ProcInfo::openFiles};
    for (const std::string& folder : folders.all()) {
        if (auto lock = DataFolderLock::read(folder))
            evidence.locks.push_back(std::move(*lock));
    }
    return evidence;
}

ClaudeApp::Look ClaudeApp::look(const DataFolders& folders) const {
    // Read the notes first: every copy they mention has then started by the time we read the processes.
    std::vector<LaunchNote> notes = m_notes.all();
    Look look = {ProcInfo::all(kCopyVariables), {}};
    const ProcessFamily family(look.processes);
    std::erase_if(notes, [&](const LaunchNote& note) {
        const bool isRunning = std::ranges::any_of(
            look.processes, [&](const ProcInfo& process) { return belongsTo(note.opened, process, family); });
        if (!isRunning)
            m_notes.remove(note);
        return !isRunning;
    });
    look.copies = openCopies(evidence(look.processes, std::move(notes), folders));
    // A copy that ended while we were reading it may have shown only part of itself.
    std::erase_if(look.copies, [&](const Instance& copy) { return m_workspace.isTerminated(copy.app); });
    return look;
}

std::vector<ClaudeApp::Instance> ClaudeApp::instances(const DataFolders& folders) const {
    return look(folders).copies;
}

std::vector<ProcInfo> ClaudeApp::processes(const fs::path& dataDir, const DataFolders& folders) const {
    const std::string folder = normalizedPath(dataDir);
    const Look now = look(folders);
    std::vector<std::int32_t> roots;
    for (const Instance& instance : now.copies) {
        if (instance.dataDir == folder)
            roots.push_back(instance.pid());
    }
    std::vector<ProcInfo> result = processesOf(folder, roots, now.processes, folders);
    // A Selvane command may well name the folder in its arguments. That doesn't mean it uses it.
    std::erase_if(result, [self = getpid()](const ProcInfo& process) { return process.pid == self; });
    return result;
}

std::vector<ProcInfo> ClaudeApp::allProcesses(const DataFolders& folders) const {
    std::vector<std::string> prefixes = {folders.normal() + "/", folders.accountsFolder() + "/",
                                         std::string(kMacInstallPrefix)};
    if (const auto installed = application(); installed && !installed->folder.empty())
        prefixes.push_back(installed->folder.string() + "/");

    const Look now = look(folders);
    // Copies started by a wrapper in a shared folder are in none of these places. A process that runs a
    // copy's executable also belongs to Claude Desktop, unless it is an unrelated application with the same
    // executable.
    const ProcessFamily family(now.processes);
    const auto isCopy = [&](const ProcInfo& process) {
        return std::ranges::count(now.copies, process.pid, &Instance::pid) > 0;
    };
    std::set<std::string> executables;
    for (const ProcInfo& process : now.processes) {
        if (isCopy(process))
            executables.insert(process.path);
    }
    const auto isRelated = [&](const ProcInfo& process) {
        return isCopy(process) || family.ancestor(process, isCopy) != nullptr ||
               std::ranges::any_of(folders.all(), [&](const std::string& folder) {
                   return namesDataFolder(process, folder, folders);
               });
    };
    std::vector<ProcInfo> result;
    for (const ProcInfo& process : now.processes) {
        const bool liesThere = std::ranges::any_of(
            prefixes, [&](const std::string& prefix) { return process.path.starts_with(prefix); });
        if (liesThere || (executables.contains(process.path) && isRelated(process)))
            result.push_back(process);
    }
    return result;
}

bool ClaudeApp::activate(const Instance& instance) const {
    return m_workspace.activate(instance.app);
}

bool ClaudeApp::quit(const std::vector<Instance>& instances, QuitKind kind, std::chrono::milliseconds timeout,
                     const std::function<bool()>& until) const {
    for (const Instance& instance : instances) {
        if (kind == QuitKind::forced)
            m_workspace.forceTerminate(instance.app);
        else
            m_workspace.terminate(instance.app);
    }
    if (instances.empty())
        return until();
    const auto deadline = m_clock.now() + (kind == QuitKind::forced ? kForcedQuitTimeout : timeout);
    const auto haveEnded = [&] {
        return std::all_of(
                   instances.begin(), instances.end(),
                   [&](const Instance& instance) { return m_workspace.isTerminated(instance.app); }) &&
               until();
    };
    while (!haveEnded()) {
        if (m_clock.now() >= deadline)
            return haveEnded();
        m_clock.sleep(kPollInterval);
    }
    return true;
}

void ClaudeApp::passOn(const SignInLink& link, const Instance& copy, const fs::path& normalDir) const {
    if (copy.dataDir.empty())
        throw LauncherError("Non si sa quale account usa questa copia di Claude: chiudila e riprova");
    if (m_workspace.isTerminated(copy.app)) // what is started now would be a copy that nobody knows of
        throw LauncherError("Claude è stato chiuso nel frattempo: riprova");
    OpenConfiguration opening;
    opening.withholds = isWithheld;
    if (copy.config)
        opening.environment[std::string(kConfigDirVariable)] = *copy.config;
    if (copy.dataDir != normalizedPath(normalDir))
        opening.arguments.push_back(std::string(kDataDirSwitch) + copy.dataDir);
    opening.arguments.push_back(link.secretText());
    m_workspace.open(requireApplication(), opening);
}

void ClaudeApp::launch(const Profile& profile, ProfileStore& store, const Environment& start,
                       const std::optional<SignInLink>& link) const {
    const Application installed = requireApplication();
    store.restoreDesktopData();
    // One launch at a time: the next one must find this copy among the processes.
    const FolderLock lock(store.desktopStore());
    requireFree(profile, store);
    const fs::path dataDir = prepared(profile, store);
    LaunchNote note;
    note.profile = profile.id;
    note.dataDir = normalizedPath(dataDir);
    if (!profile.isDefault())
        note.config = normalizedPath(profile.configDir);
    OpenConfiguration opening = configuration(profile, dataDir, store.liveDesktopDir());
    opening.environment.insert(start.begin(), start.end());
    const std::vector<std::string> ofEntry = m_entries.windowArguments(profile);
    opening.arguments.insert(opening.arguments.begin(), ofEntry.begin(), ofEntry.end());
    if (link)
        opening.arguments.push_back(link->secretText());
    note.opened = m_workspace.open(installed, opening);
    if (!store.testMode()) {
        m_notes.add(note);
        awaitCopy(note, profile, store, installed.executable);
    }
    store.markLaunched(profile);
}

/// Throws while a copy is using the profile's account. Waits for the helpers of a copy that has just ended.
void ClaudeApp::requireFree(const Profile& profile, const ProfileStore& store) const {
    const auto deadline = m_clock.now() + kLeavingTimeout;
    while (store.desktopDataInUse(store.desktopDataDir(profile))) {
        if (m_clock.now() >= deadline || store.instance(profile))
            throw LauncherError("L'account di «" + profile.meta.name +
                                "» è già aperto in Claude: chiudilo prima.");
        m_clock.sleep(kOpeningPollInterval);
    }
}

/// Waits until the new copy shows its data folder. Ignores the launch note, which only says what the folder
/// should be.
void ClaudeApp::awaitCopy(const LaunchNote& note, const Profile& profile, const ProfileStore& store,
                          const fs::path& executable) const {
    const auto deadline = m_clock.now() + kOpeningTimeout;
    for (;;) {
        const bool isLast = m_clock.now() >= deadline;
        const DataFolders folders = store.dataFolders();
        const std::vector<ProcInfo> processes = ProcInfo::all(kCopyVariables);
        const ProcessFamily family(processes);
        const CopyEvidence evidence = this->evidence(processes, {}, folders);
        for (const Instance& copy : openCopies(evidence)) {
            const ProcInfo* process = family.find(copy.pid());
            const bool isOurs = process != nullptr && belongsTo(note.opened, *process, family);
            if (copy.dataDir.empty() || (!isOurs && copy.dataDir != note.dataDir))
                continue;
            // The arguments alone may still be those of a wrapper.
            const bool isProven = usesDataFolder(evidence, copy.pid(), copy.dataDir);
            if (!isProven && !isLast)
                continue;
            const bool hasOtherConfig = copy.isConfigKnown && copy.config != note.config;
            if (copy.dataDir == note.dataDir && !hasOtherConfig)
                return;
            m_notes.remove(note);
            const std::string what = copy.dataDir != note.dataDir ? "l'account" : "la configurazione";
            throw LauncherError("Claude si è aperto, ma non con " + what + " di «" + profile.meta.name +
                                "»: controlla come viene avviato (" + executable.string() + ")");
        }
        if (isLast)
            return;
        m_clock.sleep(kOpeningPollInterval);
    }
}

} // namespace selvane
