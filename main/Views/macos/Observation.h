// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#import <AppKit/AppKit.h>

#include <functional>
#include <memory>
#include <utility>

namespace selvane::macos {

/// Observes a notification of the workspace on the main queue for as long as it lives. Use it only on the
/// main thread.
class Observation {
public:
    Observation(NSNotificationName name, std::function<void(NSNotification*)> notify)
        : m_notify(std::make_shared<std::function<void(NSNotification*)>>(std::move(notify))) {
        const std::weak_ptr<std::function<void(NSNotification*)>> weak = m_notify;
        m_token = [centre() addObserverForName:name
                                        object:nil
                                         queue:NSOperationQueue.mainQueue
                                    usingBlock:^(NSNotification* notification) {
                                      // Notifications still in the queue when the observer goes are dropped.
                                      if (const auto alive = weak.lock())
                                          (*alive)(notification);
                                    }];
    }
    Observation(const Observation&) = delete;
    Observation& operator=(const Observation&) = delete;
    ~Observation() { [centre() removeObserver:m_token]; }

private:
    /// The workspace has its own centre: it doesn't post its notifications to the default one.
    static NSNotificationCenter* centre() { return NSWorkspace.sharedWorkspace.notificationCenter; }

    std::shared_ptr<std::function<void(NSNotification*)>> m_notify;
    id<NSObject> m_token = nil;
};

} // namespace selvane::macos
