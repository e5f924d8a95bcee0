// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "Views/shell/Updates.h"

#import <Sparkle/Sparkle.h>

#include <functional>
#include <utility>

/// Reports on the main thread when `canCheckForUpdates` of an updater changes.
@interface SelvaneUpdateObserver : NSObject
- (instancetype)initWithUpdater:(SPUUpdater*)updater changed:(std::function<void()>)changed;
/// Stops reporting.
- (void)stop;
@end

@implementation SelvaneUpdateObserver {
    SPUUpdater* m_updater;
    std::function<void()> m_changed;
}

static NSString* const kCanCheck = @"canCheckForUpdates";
static void* const kContext = const_cast<void*>(static_cast<const void*>(&kCanCheck));

- (instancetype)initWithUpdater:(SPUUpdater*)updater changed:(std::function<void()>)changed {
    self = [super init];
    if (self != nil) {
        m_updater = updater;
        m_changed = std::move(changed);
        const NSKeyValueObservingOptions options =
            NSKeyValueObservingOptionInitial | NSKeyValueObservingOptionNew;
        [updater addObserver:self forKeyPath:kCanCheck options:options context:kContext];
    }
    return self;
}

- (void)stop {
    m_changed = nullptr;
    [m_updater removeObserver:self forKeyPath:kCanCheck context:kContext];
    m_updater = nil;
}

- (void)observeValueForKeyPath:(NSString*)keyPath
                      ofObject:(id)object
                        change:(NSDictionary<NSKeyValueChangeKey, id>*)change
                       context:(void*)context {
    if (context != kContext) {
        [super observeValueForKeyPath:keyPath ofObject:object change:change context:context];
        return;
    }
    dispatch_async(dispatch_get_main_queue(), ^{
      if (self->m_changed)
          self->m_changed();
    });
}

@end

namespace selvane {
namespace {

class SparkleUpdater final : public Updater {
public:
    SparkleUpdater()
        : m_controller([[SPUStandardUpdaterController alloc] initWithStartingUpdater:YES
                                                                     updaterDelegate:nil
                                                                  userDriverDelegate:nil]),
          m_observer([[SelvaneUpdateObserver alloc] initWithUpdater:m_controller.updater
                                                            changed:[this] { takeOver(); }]) {
        takeOver();
    }
    ~SparkleUpdater() override { [m_observer stop]; }

    bool canCheck() const override { return m_canCheck; }
    void check() override { [m_controller checkForUpdates:nil]; }
    bool installsAutomatically() const override { return m_controller.updater.automaticallyDownloadsUpdates; }
    void setInstallsAutomatically(bool value) override {
        m_controller.updater.automaticallyChecksForUpdates = YES;
        m_controller.updater.automaticallyDownloadsUpdates = value;
    }

private:
    void takeOver() {
        const bool canCheckNow = m_controller.updater.canCheckForUpdates;
        if (std::exchange(m_canCheck, canCheckNow) != canCheckNow)
            emit canCheckChanged();
    }

    SPUStandardUpdaterController* m_controller;
    SelvaneUpdateObserver* m_observer;
    bool m_canCheck = false;
};

} // namespace

/// Only a bundle that names its update feed has an updater.
std::unique_ptr<Updater> makeUpdater() {
    if ([NSBundle.mainBundle objectForInfoDictionaryKey:@"SUFeedURL"] == nil)
        return nullptr;
    return std::make_unique<SparkleUpdater>();
}

} // namespace selvane
