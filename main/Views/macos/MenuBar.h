// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#import <AppKit/AppKit.h>

#include <QString>

#include <functional>

namespace selvane {

/// One of the commands that the menu bar leads to.
struct MenuCommand {
    std::function<void()> run;
    std::function<bool()> isEnabled;
};

struct MenuCommands {
    MenuCommand checkForUpdates;
    MenuCommand showSettings;
    MenuCommand newProfile;
    MenuCommand showPicker;
};

} // namespace selvane

/// What the items with a command of ours call; it asks, whenever a menu opens or a key is pressed, whether
/// they can be chosen.
@interface SelvaneMenuTarget : NSObject <NSMenuItemValidation>
- (instancetype)initWithCommands:(selvane::MenuCommands)commands;
- (void)checkForUpdates:(id)sender;
- (void)showSettings:(id)sender;
- (void)newProfile:(id)sender;
- (void)showPicker:(id)sender;
@end

namespace selvane {

/// Puts the application's menu bar in place. The items hold `target` weakly: it has to live as long.
void installMenuBar(SelvaneMenuTarget* target, const QString& applicationName);

} // namespace selvane
