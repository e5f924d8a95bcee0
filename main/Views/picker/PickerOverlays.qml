// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import Selvane

/// The parts of the picker's window that aren't visible in its first frame.
Item {
    id: overlays

    required property LauncherApp launcher
    required property ProfilePicker view
    required property Window target
    // What the first letter shows needn't be made then.
    Component.onCompleted: overlays.view.makeFinder()

    LauncherFeedback {
        id: feedback

        app: overlays.launcher.app
        isKey: overlays.launcher.keyWindow === LauncherApp.Picker
        onNewProfileAsked: overlays.view.newProfile(overlays.view.picker.focused)
    }
    Binding {
        target: overlays.view
        property: "isCovered"
        value: feedback.covers
    }
    MenuCommands {
        launcher: overlays.launcher
        target: overlays.target
    }
    Connections {
        target: overlays.launcher

        function onNewProfile(): void {
            feedback.offerNewProfile()
        }
    }
}
