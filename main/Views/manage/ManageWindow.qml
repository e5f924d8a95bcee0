// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import Selvane

/// The window in which profiles are inspected and changed.
Window {
    id: window

    required property LauncherApp launcher

    width: Math.min(Theme.manage.window.width, launcher.room.width)
    height: Math.min(Theme.manage.window.height, launcher.room.height)
    minimumWidth: Math.min(Theme.manage.minimum.width, launcher.room.width)
    minimumHeight: Math.min(Theme.manage.minimum.height, launcher.room.height)
    title: qsTr("Impostazioni")
    color: Theme.windowFill

    LeastPane {
        anchors.fill: parent
        least: Theme.manage.minimum

        ManageView {
            id: view

            objectName: "manage"

            anchors.fill: parent
            app: window.launcher.app
            updates: window.launcher.updates
            focus: true
            isCovered: feedback.covers
            onPickerAsked: window.launcher.showPicker()
        }
    }
    LauncherFeedback {
        id: feedback

        app: window.launcher.app
        isKey: window.launcher.keyWindow === LauncherApp.Manage
        noticesAside: Theme.manage.sidebarWidth
        onNewProfileAsked: view.newProfile("")
    }
    MenuCommands {
        launcher: window.launcher
        target: window
    }
    Connections {
        target: window.launcher

        function onNewProfile(): void {
            feedback.offerNewProfile()
        }
    }
}
