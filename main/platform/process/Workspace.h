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

/// How the system knows an application.
struct ApplicationIdentity {
    std::vector<std::string> ids; ///< bundle identifier or desktop-entry ids, in order of preference
    std::string executableName;   ///< looked up on PATH if no id is found
};

/// An installed application.
struct Application {
    std::filesystem::path executable;   ///< the program to start, which may be a shell wrapper
    std::vector<std::string> arguments; ///< arguments of the installation itself, given at every start
    std::filesystem::path entry;        ///< its desktop entry; empty if found on PATH
    std::filesystem::path
        folder; ///< its own folder, on macOS its bundle; empty if it only has a shared one (a `bin`)
    std::filesystem::path workingFolder;

    bool operator==(const Application&) const = default;
};

/// The main process of a running application.
struct RunningApplication {
    std::int32_t pid = 0;
    std::uint64_t startTime = 0;

    bool operator==(const RunningApplication&) const = default;
};

/// What was started to open an application: the application itself or a wrapper around it.
struct OpenedApplication {
    RunningApplication app;
    std::int32_t session = 0; ///< the process session created for it; 0 if there is none

    bool operator==(const OpenedApplication&) const = default;
};

/// How to open a new copy.
struct OpenConfiguration {
    std::vector<std::string> arguments;
    Environment environment; ///< added to the caller's
    /// The caller's variables that the application must not see.
    std::function<bool(std::string_view name)> withholds = [](std::string_view) { return false; };
};

/// The desktop's view of one application: where it is, which copies run, how to start and end them.
class Workspace {
public:
    virtual ~Workspace() = default;

    /// Nothing if it isn't installed.
    virtual std::optional<Application> application() = 0;
    /// The processes that are main processes of the application, in the same order.
    virtual std::vector<RunningApplication> running(const std::vector<ProcInfo>& processes) = 0;
    /// Starts a new copy, even if others are running. Throws if it can't be started.
    virtual OpenedApplication open(const Application& application,
                                   const OpenConfiguration& configuration) = 0;

    virtual void terminate(const RunningApplication& app) = 0;      ///< asks it to quit
    virtual void forceTerminate(const RunningApplication& app) = 0; ///< ends it at once
    virtual bool isTerminated(const RunningApplication& app) = 0;
    /// Asks for its window to come to the front. False if the window system doesn't allow that.
    virtual bool activate(const RunningApplication& app) = 0;
};

/// The implementation for this platform. `environment` is that of the session, which the application
/// inherits.
std::unique_ptr<Workspace> makeWorkspace(ApplicationIdentity identity, Environment environment);

} // namespace selvane
