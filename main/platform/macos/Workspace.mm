// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "platform/process/Workspace.h"

#import <AppKit/AppKit.h>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <set>
#include <variant>

#include "model/LauncherError.h"
#import "platform/macos/FoundationTypes.h"
#include "platform/macos/ProcessStart.h"

namespace selvane {
namespace {

using macos::pathOf;
using macos::textOf;
using macos::urlOf;

/// Asks the kernel: what AppKit says about an application changes only while the main run loop runs, and a
/// command has none.
bool isAlive(const RunningApplication& app) {
    if (const auto status = processStatus(app.pid))
        return app.startTime == 0 || startTimeOf(*status) == app.startTime;
    return app.startTime == 0 && (::kill(app.pid, 0) == 0 || errno == EPERM);
}

/// Nothing if the application has ended. It checks after getting the object, so that can't be a later process
/// with the same pid.
NSRunningApplication* systemApplication(const RunningApplication& app) {
    NSRunningApplication* found = [NSRunningApplication runningApplicationWithProcessIdentifier:app.pid];
    return isAlive(app) ? found : nil;
}

RunningApplication runningApplication(pid_t pid) {
    const auto status = processStatus(pid);
    return {pid, status ? startTimeOf(*status) : 0};
}

NSArray<NSString*>* listOf(const std::vector<std::string>& texts) {
    NSMutableArray<NSString*>* list = [NSMutableArray arrayWithCapacity:texts.size()];
    for (const std::string& text : texts)
        [list addObject:textOf(text)];
    return list;
}

NSDictionary<NSString*, NSString*>* dictionaryOf(const Environment& environment) {
    NSMutableDictionary<NSString*, NSString*>* dictionary = [NSMutableDictionary dictionary];
    for (const auto& [name, value] : environment)
        dictionary[textOf(name)] = textOf(value);
    return dictionary;
}

/// The session starts the application, not this process. It inherits nothing from the caller's environment,
/// so there is nothing to withhold.
NSWorkspaceOpenConfiguration* systemConfiguration(const OpenConfiguration& configuration) {
    NSWorkspaceOpenConfiguration* result = [NSWorkspaceOpenConfiguration configuration];
    result.activates = YES;
    result.createsNewApplicationInstance = YES;
    if (!configuration.arguments.empty())
        result.arguments = listOf(configuration.arguments);
    if (!configuration.environment.empty())
        result.environment = dictionaryOf(configuration.environment);
    return result;
}

/// Opens the application and waits. Returns what was opened, or why that failed. The answer comes on one of
/// the system's own queues, so waiting is safe on any thread, with or without a run loop.
std::variant<RunningApplication, std::string> openAndWait(NSURL* application,
                                                          NSWorkspaceOpenConfiguration* configuration) {
    __block std::variant<RunningApplication, std::string> result;
    dispatch_semaphore_t answered = dispatch_semaphore_create(0);
    [NSWorkspace.sharedWorkspace openApplicationAtURL:application
                                        configuration:configuration
                                    completionHandler:^(NSRunningApplication* opened, NSError* error) {
                                      if (opened == nil)
                                          result = macos::reasonOf(error);
                                      else
                                          result = runningApplication(opened.processIdentifier);
                                      dispatch_semaphore_signal(answered);
                                    }];
    dispatch_semaphore_wait(answered, DISPATCH_TIME_FOREVER);
    return result;
}

class MacWorkspace final : public Workspace {
public:
    explicit MacWorkspace(const ApplicationIdentity& identity) : m_bundleId(identity.ids.front()) {}

    std::optional<Application> application() override {
        @autoreleasepool {
            NSURL* url =
                [NSWorkspace.sharedWorkspace URLForApplicationWithBundleIdentifier:textOf(m_bundleId)];
            if (url == nil)
                return std::nullopt;
            Application found;
            found.folder = pathOf(url);
            if (NSURL* executable = [NSBundle bundleWithURL:url].executableURL)
                found.executable = pathOf(executable);
            return found;
        }
    }

    std::vector<RunningApplication> running(const std::vector<ProcInfo>& processes) override {
        std::set<std::int32_t> pids = runningPids();
        std::vector<RunningApplication> result;
        for (const ProcInfo& process : processes) {
            if (pids.erase(process.pid) > 0)
                result.push_back({process.pid, process.startTime});
        }
        // Processes that can't be read count too, unless they have ended since.
        for (const std::int32_t pid : pids) {
            const RunningApplication app = {pid, 0};
            if (isAlive(app))
                result.push_back(app);
        }
        return result;
    }

    OpenedApplication open(const Application& application, const OpenConfiguration& configuration) override {
        std::variant<RunningApplication, std::string> result;
        @autoreleasepool {
            result = openAndWait(urlOf(application.folder, true), systemConfiguration(configuration));
        }
        if (const auto* failure = std::get_if<std::string>(&result))
            throw LauncherError("«" + application.folder.stem().string() + "» non si apre: " + *failure);
        return {std::get<RunningApplication>(result), 0};
    }

    void terminate(const RunningApplication& app) override {
        @autoreleasepool {
            [systemApplication(app) terminate];
        }
    }

    void forceTerminate(const RunningApplication& app) override {
        @autoreleasepool {
            [systemApplication(app) forceTerminate];
        }
    }

    bool isTerminated(const RunningApplication& app) override { return !isAlive(app); }

    bool activate(const RunningApplication& app) override {
        @autoreleasepool {
            NSRunningApplication* target = systemApplication(app);
            // The frontmost application has to give way. NSApp is null in a command, which is never
            // frontmost.
            if (target != nil && NSApp != nil && NSThread.isMainThread)
                [NSApp yieldActivationToApplication:target];
            return [target activateWithOptions:0] == YES;
        }
    }

private:
    std::set<std::int32_t> runningPids() const {
        @autoreleasepool {
            std::set<std::int32_t> pids;
            for (NSRunningApplication* app in
                 [NSRunningApplication runningApplicationsWithBundleIdentifier:textOf(m_bundleId)]) {
                if (app.processIdentifier > 0) // -1: it no longer has one
                    pids.insert(app.processIdentifier);
            }
            return pids;
        }
    }

    const std::string m_bundleId;
};

} // namespace

/// The session itself gives a new copy its environment.
std::unique_ptr<Workspace> makeWorkspace(ApplicationIdentity identity, Environment /*environment*/) {
    return std::make_unique<MacWorkspace>(identity);
}

} // namespace selvane
