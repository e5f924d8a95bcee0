// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "platform/linux/RunningApplications.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <string_view>
#include <unordered_map>

#include "platform/linux/InstalledApplication.h"

namespace selvane {
namespace {

namespace fs = std::filesystem;

constexpr std::array<std::string_view, 2> kHelperExecutables = {"chrome_crashpad_handler", "chrome-sandbox"};
/// Prefixes: versions follow, as in "python3.11".
constexpr std::array<std::string_view, 8> kInterpreters = {"bash", "busybox", "dash", "node",
                                                           "perl", "python",  "sh",   "zsh"};

bool isHelperExecutable(std::string_view name) {
    return std::find(kHelperExecutables.begin(), kHelperExecutables.end(), name) != kHelperExecutables.end();
}

bool isInterpreter(std::string_view name) {
    return std::any_of(kInterpreters.begin(), kInterpreters.end(), [&](std::string_view interpreter) {
        return name.starts_with(interpreter) &&
               name.find_first_not_of("0123456789.", interpreter.size()) == std::string_view::npos;
    });
}

/// A helper that has rewritten its title shows all arguments in the first one, joined by spaces.
bool hasTypeArgument(const ProcInfo& process) {
    const auto isType = [](const std::string& argument) { return argument.starts_with("--type="); };
    return std::any_of(process.args.begin(), process.args.end(), isType) ||
           (!process.args.empty() && process.args.front().find(" --type=") != std::string::npos);
}

/// The rules for one application over one list of processes.
class Recognition {
public:
    Recognition(const std::vector<ProcInfo>& processes, const ApplicationIdentity& identity,
                const fs::path& folder)
        : m_processes(processes), m_identity(identity) {
        if (!folder.empty())
            m_folder = (folder / "").native();
        for (const ProcInfo& process : processes)
            m_byPid.emplace(process.pid, &process);
    }

    std::vector<RunningApplication> mainProcesses() const {
        std::vector<RunningApplication> applications;
        for (const ProcInfo& process : m_processes) {
            const auto isMain = [this](const ProcInfo& ancestor) { return isCandidate(ancestor); };
            if (isCandidate(process) && !hasAncestor(process, isMain))
                applications.push_back({process.pid, process.startTime});
        }
        return applications;
    }

private:
    bool isCandidate(const ProcInfo& process) const {
        const std::string_view name = std::string_view(process.path).substr(process.path.rfind('/') + 1);
        const bool isOurs =
            liesInFolder(process) || name == m_identity.executableName || isStartedByEntry(process);
        return isOurs && !isHelperExecutable(name) && !isInterpreter(name) && !hasTypeArgument(process) &&
               !process.env.contains("ELECTRON_RUN_AS_NODE");
    }

    /// Programs among the application's resources are started by others too, such as a browser that talks
    /// to the application through one of them.
    bool liesInFolder(const ProcInfo& process) const {
        if (m_folder.empty() || !process.path.starts_with(m_folder))
            return false;
        return !std::string_view(process.path).substr(m_folder.size()).starts_with("resources/");
    }

    /// Whether the process comes from a start of one of our entries. The variables of such a start are
    /// inherited by everything below it, so they count only while the process that was started lives above.
    bool isStartedByEntry(const ProcInfo& process) const {
        const auto entry = process.env.find("GIO_LAUNCHED_DESKTOP_FILE");
        const auto started = process.env.find("GIO_LAUNCHED_DESKTOP_FILE_PID");
        if (entry == process.env.end() || started == process.env.end() ||
            isProgramsFolder(fs::path(process.path).parent_path()))
            return false;
        const fs::path file = fs::path(entry->second).filename();
        if (file.extension() != ".desktop" || std::find(m_identity.ids.begin(), m_identity.ids.end(),
                                                        file.stem().native()) == m_identity.ids.end())
            return false;
        const auto isStarted = [pid = std::string_view(started->second)](const ProcInfo& ancestor) {
            return std::to_string(ancestor.pid) == pid;
        };
        return isStarted(process) || hasAncestor(process, isStarted);
    }

    /// Processes come and go while the list is read, so that a reused pid can close a circle.
    template <typename Test>
    bool hasAncestor(const ProcInfo& process, Test test) const {
        auto parent = m_byPid.find(process.ppid);
        for (std::size_t steps = 0; parent != m_byPid.end() && steps < m_processes.size(); ++steps) {
            const ProcInfo& ancestor = *parent->second;
            if (ancestor.pid == process.pid)
                return false;
            if (test(ancestor))
                return true;
            parent = m_byPid.find(ancestor.ppid);
        }
        return false;
    }

    const std::vector<ProcInfo>& m_processes;
    const ApplicationIdentity& m_identity;
    std::string m_folder; ///< with a slash at its end; empty when unknown
    std::unordered_map<std::int32_t, const ProcInfo*> m_byPid;
};

} // namespace

std::vector<RunningApplication> mainProcesses(const std::vector<ProcInfo>& processes,
                                              const ApplicationIdentity& identity, const fs::path& folder) {
    return Recognition(processes, identity, folder).mainProcesses();
}

} // namespace selvane
