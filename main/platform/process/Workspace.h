// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/process/ProcInfo.h"
#include "platform/process/Process.h"

namespace selvane {

/// How an application is known to the system.
struct ApplicationIdentity {
    std::vector<std::string> ids; ///< bundle identifier or desktop-entry ids, the preferred first
    std::string executableName;   ///< looked up on PATH when no id is known
};

/// An installed application.
struct Application {
    std::filesystem::path executable;   ///< what is started, which may be a shell wrapper
    std::vector<std::string> arguments; ///< those of the installation itself, given at every start
    std::filesystem::path entry;        ///< its desktop entry; empty when found on PATH
    std::filesystem::path
        folder; ///< its own folder, on macOS its bundle; empty when it only has a shared one (a `bin`)
    std::filesystem::path workingFolder;

    bool operator==(const Application&) const = default;
};

/// The main process of a running application.
struct RunningApplication {
    std::int32_t pid = 0;
    std::uint64_t startTime = 0;

    bool operator==(const RunningApplication&) const = default;
};

/// What was started to open an application: the application itself, or a wrapper that leads to it.
struct OpenedApplication {
    RunningApplication app;
    std::int32_t session = 0; ///< the process session made for it; 0 where none is made

    bool operator==(const OpenedApplication&) const = default;
};

/// How a new copy is opened.
struct OpenConfiguration {
    std::vector<std::string> arguments;
    Environment environment; ///< added to the caller's
    /// Variables of the caller that the application must not see.
    std::function<bool(std::string_view name)> withholds = [](std::string_view) { return false; };
};

/// The desktop's view of one application: where it is, which copies run, and how to start and end them.
class Workspace {
public:
    virtual ~Workspace() = default;

    /// Nothing when it is not installed.
    virtual std::optional<Application> application() = 0;
    /// Those of all processes that are main processes of the application, in the same order.
    virtual std::vector<RunningApplication> running(const std::vector<ProcInfo>& processes) = 0;
    /// Starts a new copy, also when others run. Throws when it can't be started.
    virtual OpenedApplication open(const Application& application,
                                   const OpenConfiguration& configuration) = 0;

    virtual void terminate(const RunningApplication& app) = 0;      ///< asks it to quit
    virtual void forceTerminate(const RunningApplication& app) = 0; ///< ends it at once
    virtual bool isTerminated(const RunningApplication& app) = 0;
    /// Brings its window to the front where the window system allows it.
    virtual void activate(const RunningApplication& app) = 0;
};

/// The real thing for this platform. `environment` is the session's, which the application inherits.
std::unique_ptr<Workspace> makeWorkspace(ApplicationIdentity identity, Environment environment);

} // namespace selvane
