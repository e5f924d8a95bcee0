// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

// Sparkle 2: the updater.

#pragma once

#include <AppKit/AppKit.h>

#pragma clang assume_nonnull begin

@protocol SPUUpdaterDelegate <NSObject>
@end
@protocol SPUStandardUserDriverDelegate <NSObject>
@end

@interface SPUUpdater : NSObject
@property(nonatomic, readonly) BOOL canCheckForUpdates;
@property(nonatomic) BOOL automaticallyChecksForUpdates;
@property(nonatomic) BOOL automaticallyDownloadsUpdates;
@end

@interface SPUStandardUpdaterController : NSObject
- (instancetype)initWithStartingUpdater:(BOOL)startUpdater
                        updaterDelegate:(nullable id<SPUUpdaterDelegate>)updaterDelegate
                     userDriverDelegate:(nullable id<SPUStandardUserDriverDelegate>)userDriverDelegate;
@property(nonatomic, readonly) SPUUpdater* updater;
- (IBAction)checkForUpdates:(nullable id)sender;
@end

#pragma clang assume_nonnull end
