// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "Views/shell/SystemShell.h"

#import <AppKit/AppKit.h>

#include <QFileInfo>
#include <QStandardPaths>

#include <sys/stat.h>

#import "Views/macos/MenuBar.h"
#include "Views/shell/LauncherApp.h"
#include "artwork/Brand.h"
#include "model/LauncherError.h"
#import "platform/macos/FoundationTypes.h"

/// Called when the user opens the application again from the Dock or the Finder; the system doesn't start a
/// second one.
@interface SelvaneReopening : NSObject
- (instancetype)initWithLauncher:(selvane::LauncherApp*)launcher;
- (void)handleReopen:(NSAppleEventDescriptor*)event withReplyEvent:(NSAppleEventDescriptor*)reply;
@end

@implementation SelvaneReopening {
    selvane::LauncherApp* m_launcher;
}

- (instancetype)initWithLauncher:(selvane::LauncherApp*)launcher {
    self = [super init];
    if (self != nil)
        m_launcher = launcher;
    return self;
}

- (void)handleReopen:(NSAppleEventDescriptor*)event withReplyEvent:(NSAppleEventDescriptor*)reply {
    m_launcher->answerStart({});
}

@end

namespace selvane {
namespace {

MenuCommands commandsOf(LauncherApp& launcher) {
    const auto isFree = [&launcher] { return launcher.app()->busyMessage().isEmpty(); };
    return {
        .checkForUpdates = {[&launcher] { launcher.updates()->checkNow(); },
                            [&launcher] { return launcher.updates()->canCheck(); }},
        .showSettings = {[&launcher] { launcher.showManage(); }, isFree},
        .newProfile = {[&launcher] { emit launcher.newProfile(); }, isFree},
        .showPicker = {[&launcher] { launcher.showPicker(); }, isFree},
    };
}

/// The menu bar, and the response to being opened again.
class MacShell final : public QObject {
public:
    explicit MacShell(LauncherApp& launcher)
        : m_menuTarget([[SelvaneMenuTarget alloc] initWithCommands:commandsOf(launcher)]),
          m_reopening([[SelvaneReopening alloc] initWithLauncher:&launcher]) {
        installMenuBar(m_menuTarget, Brand::name);
        // Wait until the event loop has started: by then AppKit has installed its own handler.
        connect(&launcher, &LauncherApp::begun, this, &MacShell::listen);
    }
    ~MacShell() override {
        [NSAppleEventManager.sharedAppleEventManager removeEventHandlerForEventClass:kCoreEventClass
                                                                          andEventID:kAEReopenApplication];
    }

private:
    void listen() {
        [NSAppleEventManager.sharedAppleEventManager setEventHandler:m_reopening
                                                         andSelector:@selector(handleReopen:withReplyEvent:)
                                                       forEventClass:kCoreEventClass
                                                          andEventID:kAEReopenApplication];
    }

    SelvaneMenuTarget* m_menuTarget; // kept here, as the menu and the event manager don't keep it
    SelvaneReopening* m_reopening;
};

} // namespace

/// There is no display over ssh alone, for example.
void requireDisplay() {
    const CFDictionaryRef session = CGSessionCopyCurrentDictionary();
    if (session != nullptr)
        CFRelease(session);
    else if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        throw LauncherError(kNoDisplay);
}

// The system itself decides which application comes to the front, and keeps what was copied.
QByteArray takeStartToken(Environment& /*environment*/) {
    return {};
}

void useStartToken(const QByteArray& /*token*/) {}

Environment startVariables() {
    return {};
}

bool keepsClipboard() {
    return true;
}

/// The user defaults of the bundle, whose identifier consists of these two names.
std::unique_ptr<QSettings> openSettings() {
    return std::make_unique<QSettings>(QSettings::NativeFormat, QSettings::UserScope,
                                       QStringLiteral("selvane.org"), QStringLiteral("Selvane"));
}

std::unique_ptr<QObject> makeSystemShell(LauncherApp& launcher) {
    return std::make_unique<MacShell>(launcher);
}

/// There the application itself is asked, not a file.
bool canReceiveSignIns() {
    return false;
}

/// Opens FileMerge, which comes with Xcode; without it, the command is there but does nothing.
QStringList comparisonPrograms() {
    const QString fileMerge = QStringLiteral("/Applications/Xcode.app/Contents/Applications/FileMerge.app");
    return QFileInfo::exists(fileMerge) ? QStringList{QStringLiteral("opendiff")} : QStringList();
}

/// The Finder is always there.
void revealItem(const std::filesystem::path& item, std::function<void()> /*failed*/) {
    struct stat status = {};
    const bool isFolder = ::lstat(item.c_str(), &status) == 0 && S_ISDIR(status.st_mode);
    [NSWorkspace.sharedWorkspace activateFileViewerSelectingURLs:@[ macos::urlOf(item, isFolder) ]];
}

} // namespace selvane
