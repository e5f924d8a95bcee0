// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import Selvane

/// The shortcuts for the application's menu commands and for closing a window and quitting. If the system has
/// a menu bar, its items have these keys instead.
Item {
    id: commands

    required property LauncherApp launcher
    required property Window target

    readonly property bool hasMenuBar: Qt.platform.os === "osx"
    readonly property bool isFree: !hasMenuBar && launcher.app.busyMessage === ""

    Shortcut {
        sequence: "Ctrl+,"
        enabled: commands.isFree
        onActivated: commands.launcher.showManage()
    }
    Shortcut {
        sequence: "Ctrl+0"
        enabled: commands.isFree
        onActivated: commands.launcher.showPicker()
    }
    Shortcut {
        sequence: "Ctrl+N"
        enabled: commands.isFree
        onActivated: commands.launcher.newProfile()
    }
    Shortcut {
        sequence: "Ctrl+W"
        enabled: !commands.hasMenuBar
        onActivated: commands.target.close()
    }
    Shortcut {
        sequence: "Ctrl+Q"
        enabled: !commands.hasMenuBar
        onActivated: Qt.quit()
    }
}
