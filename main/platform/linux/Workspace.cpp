// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "platform/process/Workspace.h"

#include <signal.h>
#include <sys/syscall.h>
#include <unistd.h>

#include "model/LauncherError.h"
#include "platform/files/Descriptor.h"
#include "platform/linux/DesktopServices.h"
#include "platform/linux/InstalledApplication.h"
#include "platform/linux/ProcStat.h"
#include "platform/linux/RunningApplications.h"
#include "platform/process/ProcInfo.h"

namespace selvane {
namespace {

namespace fs = std::filesystem;

constexpr const char* kEntryVariable = "GIO_LAUNCHED_DESKTOP_FILE";
constexpr const char* kEntryPidVariable = "GIO_LAUNCHED_DESKTOP_FILE_PID";

/// A process that is ending loses its executable, arguments and environment before it is shown as ended.
bool hasExecutable(std::int32_t pid) {
    char first = 0;
    const std::string link = "/proc/" + std::to_string(pid) + "/exe";
    return ::readlink(link.c_str(), &first, 1) >= 0 || errno != ENOENT;
}

bool isAlive(const RunningApplication& app) {
    const std::optional<ProcStat> stat = ProcStat::read(app.pid);
    return stat && !stat->isEnded() && stat->startTime == app.startTime && hasExecutable(app.pid);
}

/// Can't reach another process: the start time is compared after the descriptor is opened. A signal that
/// can't be sent is not reported; the application just doesn't end.
void sendSignal(const RunningApplication& app, int signal) {
    const files::Descriptor process(static_cast<int>(::syscall(SYS_pidfd_open, app.pid, 0)));
    if (process && isAlive(app))
        ::syscall(SYS_pidfd_send_signal, process.get(), signal, nullptr, 0);
}

class LinuxWorkspace final : public Workspace {
public:
    LinuxWorkspace(ApplicationIdentity identity, Environment environment)
        : m_identity(std::move(identity)), m_environment(std::move(environment)) {}

    std::optional<Application> application() override { return findApplication(m_identity, m_environment); }

    std::vector<RunningApplication> running(const std::vector<ProcInfo>& processes) override {
        const std::optional<Application> installed = application();
        return mainProcesses(processes, m_identity, installed ? installed->folder : fs::path());
    }

    OpenedApplication open(const Application& application, const OpenConfiguration& configuration) override {
        std::vector<std::string> arguments = application.arguments;
        arguments.insert(arguments.end(), configuration.arguments.begin(), configuration.arguments.end());
        const bool hasEntry = !application.entry.empty();
        const process::Started started = process::startDetached(
            application.executable, arguments, startEnvironment(application, configuration),
            startFolder(application), hasEntry ? kEntryPidVariable : "");
        return {{started.pid, started.startTime}, started.pid};
    }

    void terminate(const RunningApplication& app) override { sendSignal(app, SIGTERM); }
    void forceTerminate(const RunningApplication& app) override { sendSignal(app, SIGKILL); }
    bool isTerminated(const RunningApplication& app) override { return !isAlive(app); }

    bool activate(const RunningApplication& app) override {
        try {
            return desktopServices().raiseWindow(app.pid);
        } catch (const LauncherError&) {
            // Without the services the window stays where it is, as on a display that can't raise windows.
            return false;
        }
    }

private:
    Environment startEnvironment(const Application& application,
                                 const OpenConfiguration& configuration) const {
        Environment environment = m_environment;
        std::erase_if(environment,
                      [&](const auto& variable) { return configuration.withholds(variable.first); });
        for (const auto& [name, value] : configuration.environment)
            environment.insert_or_assign(name, value);
        // Variables from our own start would make the new process look like part of another application.
        environment.erase(kEntryVariable);
        environment.erase(kEntryPidVariable);
        if (!application.entry.empty())
            environment.emplace(kEntryVariable, application.entry);
        return environment;
    }

    fs::path startFolder(const Application& application) const {
        std::error_code error;
        for (const fs::path& folder : {application.workingFolder, homeFolder(m_environment)}) {
            if (folder.is_absolute() && fs::is_directory(folder, error))
                return folder;
        }
        return "/";
    }

    const ApplicationIdentity m_identity;
    const Environment m_environment;
};

} // namespace

std::unique_ptr<Workspace> makeWorkspace(ApplicationIdentity identity, Environment environment) {
    return std::make_unique<LinuxWorkspace>(std::move(identity), std::move(environment));
}

} // namespace selvane
