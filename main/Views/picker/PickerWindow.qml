// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import Selvane

/// The window that the application opens first.
Window {
    id: window

    required property LauncherApp launcher
    readonly property bool isComplete: overlays.status === Loader.Ready

    width: Math.min(Theme.picker.window.width, launcher.room.width)
    height: Math.min(Theme.picker.window.height, launcher.room.height)
    minimumWidth: Math.min(Theme.picker.minimum.width, launcher.room.width)
    minimumHeight: Math.min(Theme.picker.minimum.height, launcher.room.height)
    title: Theme.brand.name
    color: Theme.windowFill
    onVisibleChanged: {
        if (visible)
            model.begin()
    }

    PickerModel {
        id: model

        app: window.launcher.app
    }
    LeastPane {
        width: window.width
        height: window.height
        least: Theme.picker.minimum

        ProfilePicker {
            id: view

            // Not anchored: anchors take effect after the texts inside are laid out, so that all of it would be
            // laid out twice, the heading in two sizes.
            width: Math.max(window.width, Theme.picker.minimum.width)
            height: Math.max(window.height, Theme.picker.minimum.height)
            app: window.launcher.app
            picker: model
            onManageAsked: window.launcher.showManage()
        }
    }
    Loader {
        id: overlays

        anchors.fill: parent
        z: Theme.toastLayer
        asynchronous: true
    }
    Connections {
        target: window
        enabled: overlays.status === Loader.Null

        function onFrameSwapped(): void {
            overlays.setSource("PickerOverlays.qml", {launcher: window.launcher, view: view, target: window})
        }
    }
}
