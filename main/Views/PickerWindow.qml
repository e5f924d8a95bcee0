// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import Selvane

/// The window that the application opens at start.
Window {
    id: window

    required property AppModel app

    width: Theme.pickerWindow.width
    height: Theme.pickerWindow.height
    minimumWidth: Theme.pickerMinimum.width
    minimumHeight: Theme.pickerMinimum.height
    title: Theme.brand.name
    color: Theme.windowFill
    onVisibleChanged: {
        if (visible)
            model.begin()
    }

    PickerModel {
        id: model

        app: window.app
    }
    ProfilePicker {
        anchors.fill: parent
        app: window.app
        picker: model
    }
}
