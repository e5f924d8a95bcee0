// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "desktop/ClaudeApp.h"

#include <algorithm>
#include <set>
#include <unistd.h>
#include <unordered_map>

#include "model/LauncherError.h"
#include "platform/FolderLock.h"
#include "platform/Locations.h"
#include "store/ProfileStore.h"

namespace selvane {
namespace {

namespace fs = std::filesystem;

constexpr int kMaximumAncestors = 31;
constexpr std::string_view kConfigDirVariable = "CLAUDE_CONFIG_DIR";
constexpr std::string_view kMacInstallPrefix = "/Applications/Claude.app/";

using ProcessMap = std::unordered_map<std::int32_t, const ProcInfo*>;

bool namesFolder(const std::string& argument, const std::string& folder) {
    return argument.find(folder + "/") != std::string::npos || argument.ends_with("=" + folder);
}

bool descendsFrom(const std::vector<std::int32_t>& roots, const ProcInfo& process, const ProcessMap& map) {
    const ProcInfo* current = &process;
    for (int generation = 0; generation <= kMaximumAncestors; ++generation) {
        if (std::find(roots.begin(), roots.end(), current->pid) != roots.end())
            return true;
        const auto parent = map.find(current->ppid);
        if (parent == map.end())
            return false;
        current = parent->second;
    }
    return false;
}

ClaudeApp::Instance instanceOf(const RunningApplication& app, const fs::path& defaultDataDir) {
    ClaudeApp::Instance instance{app, defaultDataDir.string(), std::nullopt};
    if (const auto process = ProcInfo::read(app.pid)) {
        // A copy that was started with another home has its normal folder there.
        if (process->env.contains("HOME"))
            instance.dataDir = applicationDataFolder(process->env, "Claude", [] { return true; }).string();
        const auto argument =
            std::find_if(process->args.begin(), process->args.end(), [](const std::string& candidate) {
                return candidate.starts_with(ClaudeApp::kDataDirSwitch);
            });
        if (argument != process->args.end() && argument->size() > ClaudeApp::kDataDirSwitch.size())
            instance.dataDir = argument->substr(ClaudeApp::kDataDirSwitch.size());
        const auto config = process->env.find(std::string(kConfigDirVariable));
        if (config != process->env.end() && !config->second.empty())
            instance.config = ClaudeApp::normalized(config->second);
    }
    instance.dataDir = ClaudeApp::normalized(instance.dataDir);
    return instance;
}

/// What belongs to Selvane, or to the copy that Selvane was started from, must not reach a new copy.
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
        result.arguments = {std::string(ClaudeApp::kDataDirSwitch) + dataDir.string()};
    return result;
}

/// Brings the files of a profile up to date for its launch; returns its data folder.
fs::path prepared(const Profile& profile, ProfileStore& store) {
    const fs::path dataDir = store.desktopDataDir(profile);
    if (store.desktopDataInUse(dataDir))
        throw LauncherError("L'account di «" + profile.meta.name +
                            "» è già aperto in Claude: chiudilo prima.");
    store.sync(profile);
    store.flushPendingSessions(profile);
    FileManager().createFolders(dataDir, Privacy::ownerOnly);
    return dataDir;
}

} // namespace

std::vector<ProcInfo> processesOf(const std::string& dataDir, const std::vector<std::int32_t>& roots,
                                  const std::vector<ProcInfo>& all) {
    ProcessMap map;
    for (const ProcInfo& process : all)
        map.emplace(process.pid, &process);
    std::vector<ProcInfo> result;
    for (const ProcInfo& process : all) {
        const bool names = std::any_of(process.args.begin(), process.args.end(),
                                       [&](const std::string& arg) { return namesFolder(arg, dataDir); });
        if (process.path.starts_with(dataDir + "/") || names || descendsFrom(roots, process, map))
            result.push_back(process);
    }
    return result;
}

ApplicationIdentity ClaudeApp::identity() {
    return {{std::string(kBundleId), "com.anthropic.Claude", "claude-desktop"}, "claude-desktop"};
}

ClaudeApp::ClaudeApp(Workspace& workspace, Clock& clock) : m_workspace(workspace), m_clock(clock) {}

std::string ClaudeApp::normalized(const std::string& path) {
    std::string result = fs::absolute(path).lexically_normal().string();
    while (result.size() > 1 && result.ends_with('/'))
        result.pop_back();
    return result;
}

std::optional<Application> ClaudeApp::application() const {
    return m_workspace.application();
}

Application ClaudeApp::requireApplication() const {
    auto installed = application();
    if (!installed)
        throw LauncherError("Claude.app non trovata. Installala in /Applications.");
    return std::move(*installed);
}

std::vector<ClaudeApp::Instance> ClaudeApp::instances(const fs::path& defaultDataDir) const {
    return instancesAmong(ProcInfo::all(), defaultDataDir);
}

std::vector<ClaudeApp::Instance> ClaudeApp::instancesAmong(const std::vector<ProcInfo>& processes,
                                                           const fs::path& defaultDataDir) const {
    std::vector<Instance> result;
    for (const RunningApplication& app : m_workspace.running(processes)) {
        Instance instance = instanceOf(app, defaultDataDir);
        // One that ended while it was read shows neither arguments nor environment, and would be taken for a
        // copy with the normal folder.
        if (!m_workspace.isTerminated(app))
            result.push_back(std::move(instance));
    }
    return result;
}

std::vector<ProcInfo> ClaudeApp::processes(const fs::path& dataDir, const fs::path& defaultDataDir) const {
    const std::string folder = normalized(dataDir.string());
    const std::vector<ProcInfo> all = ProcInfo::all();
    std::vector<std::int32_t> roots;
    for (const Instance& instance : instancesAmong(all, defaultDataDir)) {
        if (instance.dataDir == folder)
            roots.push_back(instance.pid());
    }
    std::vector<ProcInfo> result = processesOf(folder, roots, all);
    // A command of ours may well name the folder; that is no use of it.
    std::erase_if(result, [self = getpid()](const ProcInfo& process) { return process.pid == self; });
    return result;
}

std::vector<ProcInfo> ClaudeApp::allProcesses(const std::vector<fs::path>& dataDirs) const {
    std::vector<std::string> prefixes;
    for (const fs::path& dataDir : dataDirs)
        prefixes.push_back(normalized(dataDir.string()) + "/");
    prefixes.emplace_back(kMacInstallPrefix);
    if (const auto installed = application(); installed && !installed->folder.empty())
        prefixes.push_back(installed->folder.string() + "/");

    std::vector<ProcInfo> result = ProcInfo::all();
    // Copies started through a wrapper in a shared folder lie in none of these places: what runs the
    // executable of a main process belongs to it as well.
    std::set<std::string> executables;
    for (const RunningApplication& main : m_workspace.running(result)) {
        for (const ProcInfo& process : result) {
            if (process.pid == main.pid)
                executables.insert(process.path);
        }
    }
    std::erase_if(result, [&](const ProcInfo& process) {
        return !executables.contains(process.path) &&
               std::none_of(prefixes.begin(), prefixes.end(),
                            [&](const std::string& prefix) { return process.path.starts_with(prefix); });
    });
    return result;
}

void ClaudeApp::activate(const Instance& instance) const {
    m_workspace.activate(instance.app);
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

void ClaudeApp::launch(const Profile& profile, ProfileStore& store) const {
    const Application installed = requireApplication();
    store.restoreDesktopData();
    // One launch at a time: the next one must find this one's copy among the processes.
    const FolderLock lock(store.desktopStore());
    const fs::path dataDir = prepared(profile, store);
    m_workspace.open(installed, configuration(profile, dataDir, store.liveDesktopDir()));
    store.markLaunched(profile);
}

} // namespace selvane
