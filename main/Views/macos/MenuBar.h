// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#import <AppKit/AppKit.h>

#include <QString>

#include <functional>

namespace selvane {

/// One of the commands in the menu bar.
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

/// The target of the items with commands of our own. Whenever a menu opens or a key is pressed, it says
/// whether they can be chosen.
@interface SelvaneMenuTarget : NSObject <NSMenuItemValidation>
- (instancetype)initWithCommands:(selvane::MenuCommands)commands;
- (void)checkForUpdates:(id)sender;
- (void)showSettings:(id)sender;
- (void)newProfile:(id)sender;
- (void)showPicker:(id)sender;
@end

namespace selvane {

/// Installs the application's menu bar. The items hold `target` weakly, so it must live as long as they do.
void installMenuBar(SelvaneMenuTarget* target, const QString& applicationName);

} // namespace selvane
