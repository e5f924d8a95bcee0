// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "Views/shell/ApplicationWatch.h"

#include <list>

#import "Views/macos/Observation.h"
#include "desktop/ClaudeApp.h"
#import "platform/macos/FoundationTypes.h"

namespace selvane {
namespace {

/// Learns of applications from the workspace's notifications.
class NotificationWatch final : public ApplicationWatch {
public:
    void setWatching(bool watches) override {
        if (watches == !m_observations.empty())
            return;
        m_observations.clear();
        if (!watches)
            return;
        const auto notify = [this](NSNotification* notification) { hear(notification); };
        m_observations.emplace_back(NSWorkspaceDidLaunchApplicationNotification, notify);
        m_observations.emplace_back(NSWorkspaceDidTerminateApplicationNotification, notify);
        emit changed(); // something may have happened before
    }

private:
    void hear(NSNotification* notification) {
        const id application = notification.userInfo[NSWorkspaceApplicationKey];
        if (![application isKindOfClass:NSRunningApplication.class])
            return;
        NSString* identifier = ((NSRunningApplication*)application).bundleIdentifier;
        if ([identifier isEqualToString:macos::textOf(std::string(ClaudeApp::kBundleId))])
            emit changed();
    }

    std::list<macos::Observation> m_observations;
};

} // namespace

std::unique_ptr<ApplicationWatch> makeApplicationWatch(std::function<std::vector<OpenCopy>()> /*look*/) {
    return std::make_unique<NotificationWatch>();
}

} // namespace selvane
