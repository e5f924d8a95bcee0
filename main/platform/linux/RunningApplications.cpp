// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "platform/linux/RunningApplications.h"

#include <algorithm>
#include <string_view>

#include "platform/linux/InstalledApplication.h"
#include "platform/process/MainProcess.h"
#include "platform/process/ProcessFamily.h"

namespace selvane {
namespace {

namespace fs = std::filesystem;

/// Finds the main processes of one application in a list of processes.
class Recognition {
public:
    Recognition(const std::vector<ProcInfo>& processes, const ApplicationIdentity& identity,
                const fs::path& folder)
        : m_processes(processes), m_identity(identity), m_family(processes) {
        if (!folder.empty())
            m_folder = (folder / "").native();
    }

    std::vector<RunningApplication> mainProcesses() const {
        std::vector<RunningApplication> applications;
        for (const ProcInfo& process : m_processes) {
            const auto isMain = [this](const ProcInfo& ancestor) { return isCandidate(ancestor); };
            if (isCandidate(process) && m_family.ancestor(process, isMain) == nullptr)
                applications.push_back({process.pid, process.startTime});
        }
        return applications;
    }

private:
    bool isCandidate(const ProcInfo& process) const {
        const std::string_view name = std::string_view(process.path).substr(process.path.rfind('/') + 1);
        const bool isOurs =
            liesInFolder(process) || name == m_identity.executableName || isStartedByEntry(process);
        return isOurs && canBeMainProcess(process);
    }

    /// Other applications also start programs from the application's resources: a browser, for example, talks
    /// to it through one of them.
    bool liesInFolder(const ProcInfo& process) const {
        if (m_folder.empty() || !process.path.starts_with(m_folder))
            return false;
        return !std::string_view(process.path).substr(m_folder.size()).starts_with("resources/");
    }

    /// Whether the process was started from one of our desktop entries. All descendants inherit the variables
    /// of such a start, so they count only while the process that was started is this one or an ancestor.
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
        return isStarted(process) || m_family.ancestor(process, isStarted) != nullptr;
    }

    const std::vector<ProcInfo>& m_processes;
    const ApplicationIdentity& m_identity;
    std::string m_folder; ///< ends with a slash; empty if unknown
    const ProcessFamily m_family;
};

} // namespace

std::vector<RunningApplication> mainProcesses(const std::vector<ProcInfo>& processes,
                                              const ApplicationIdentity& identity, const fs::path& folder) {
    return Recognition(processes, identity, folder).mainProcesses();
}

} // namespace selvane
