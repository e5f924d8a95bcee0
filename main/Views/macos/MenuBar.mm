// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#import "Views/macos/MenuBar.h"

#include <QCoreApplication>

#include <utility>

@implementation SelvaneMenuTarget {
    selvane::MenuCommands m_commands;
}

- (instancetype)initWithCommands:(selvane::MenuCommands)commands {
    self = [super init];
    if (self != nil)
        m_commands = std::move(commands);
    return self;
}

- (void)checkForUpdates:(id)sender {
    m_commands.checkForUpdates.run();
}

- (void)showSettings:(id)sender {
    m_commands.showSettings.run();
}

- (void)newProfile:(id)sender {
    m_commands.newProfile.run();
}

- (void)showPicker:(id)sender {
    m_commands.showPicker.run();
}

- (BOOL)validateMenuItem:(NSMenuItem*)item {
    const std::pair<SEL, const selvane::MenuCommand*> commands[] = {
        {@selector(checkForUpdates:), &m_commands.checkForUpdates},
        {@selector(showSettings:), &m_commands.showSettings},
        {@selector(newProfile:), &m_commands.newProfile},
        {@selector(showPicker:), &m_commands.showPicker},
    };
    for (const auto& [action, command] : commands) {
        if (item.action == action)
            return command->isEnabled();
    }
    return YES;
}

@end

namespace selvane {
namespace {

NSString* shown(const char* text) {
    return QCoreApplication::translate("MenuBar", text).toNSString();
}

NSMenu* addMenu(NSMenu* bar, NSString* title) {
    NSMenu* menu = [[NSMenu alloc] initWithTitle:title];
    [bar addItemWithTitle:title action:nil keyEquivalent:@""].submenu = menu;
    return menu;
}

/// An item of our own. Without a target, whatever has the focus answers it, or the application.
void addCommand(NSMenu* menu, const char* title, SEL action, NSString* key, SelvaneMenuTarget* target) {
    [menu addItemWithTitle:shown(title) action:action keyEquivalent:key].target = target;
}

void fillApplicationMenu(NSMenu* menu, SelvaneMenuTarget* target, const QString& name) {
    const auto named = [&](const char* title) {
        return QCoreApplication::translate("MenuBar", title).arg(name).toNSString();
    };
    [menu addItemWithTitle:named("Informazioni su %1")
                    action:@selector(orderFrontStandardAboutPanel:)
             keyEquivalent:@""];
    addCommand(menu, "Verifica aggiornamenti…", @selector(checkForUpdates:), @"", target);
    [menu addItem:[NSMenuItem separatorItem]];
    addCommand(menu, "Impostazioni…", @selector(showSettings:), @",", target);
    [menu addItem:[NSMenuItem separatorItem]];
    NSMenu* services = [[NSMenu alloc] initWithTitle:shown("Servizi")];
    [menu addItemWithTitle:shown("Servizi") action:nil keyEquivalent:@""].submenu = services;
    NSApp.servicesMenu = services;
    [menu addItem:[NSMenuItem separatorItem]];
    [menu addItemWithTitle:named("Nascondi %1") action:@selector(hide:) keyEquivalent:@"h"];
    [menu addItemWithTitle:shown("Nascondi altre")
                    action:@selector(hideOtherApplications:)
             keyEquivalent:@"h"]
        .keyEquivalentModifierMask = NSEventModifierFlagCommand | NSEventModifierFlagOption;
    [menu addItemWithTitle:shown("Mostra tutte") action:@selector(unhideAllApplications:) keyEquivalent:@""];
    [menu addItem:[NSMenuItem separatorItem]];
    [menu addItemWithTitle:named("Esci da %1") action:@selector(terminate:) keyEquivalent:@"q"];
}

void fillFileMenu(NSMenu* menu, SelvaneMenuTarget* target) {
    addCommand(menu, "Nuovo profilo…", @selector(newProfile:), @"n", target);
    [menu addItem:[NSMenuItem separatorItem]];
    [menu addItemWithTitle:shown("Chiudi") action:@selector(performClose:) keyEquivalent:@"w"];
}

void fillWindowMenu(NSMenu* menu, SelvaneMenuTarget* target) {
    [menu addItemWithTitle:shown("Contrai") action:@selector(performMiniaturize:) keyEquivalent:@"m"];
    [menu addItemWithTitle:shown("Ridimensiona") action:@selector(performZoom:) keyEquivalent:@""];
    [menu addItem:[NSMenuItem separatorItem]];
    addCommand(menu, "Scegli profilo", @selector(showPicker:), @"0", target);
    [menu addItem:[NSMenuItem separatorItem]];
    [menu addItemWithTitle:shown("Porta tutto in primo piano")
                    action:@selector(arrangeInFront:)
             keyEquivalent:@""];
}

} // namespace

void installMenuBar(SelvaneMenuTarget* target, const QString& applicationName) {
    NSMenu* bar = [[NSMenu alloc] initWithTitle:@""];
    // The first menu is always the application's, whatever its title.
    fillApplicationMenu(addMenu(bar, applicationName.toNSString()), target, applicationName);
    fillFileMenu(addMenu(bar, shown("File")), target);
    NSMenu* windows = addMenu(bar, shown("Finestra"));
    fillWindowMenu(windows, target);
    NSApp.mainMenu = bar;
    NSApp.windowsMenu = windows;
}

} // namespace selvane
