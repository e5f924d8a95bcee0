// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import Selvane

/// The buttons of a sheet or an alert: two, perhaps with another between them.
Row {
    id: buttons

    required property string confirmText
    property string cancelText: qsTr("Annulla") ///< empty: no cancel button
    property bool confirmEnabled: true
    property string extraText ///< of the one between; empty: there is none
    property bool extraEnabled: true
    property bool destructive: false

    property alias confirmButton: confirmButton
    property alias cancelButton: cancelButton

    signal confirmed
    signal cancelled
    signal extraAsked

    spacing: Theme.space12

    GhostButton {
        id: cancelButton

        visible: text !== ""
        size: GhostButton.Large
        text: buttons.cancelText
        onClicked: buttons.cancelled()
    }
    GhostButton {
        visible: buttons.extraText !== ""
        size: GhostButton.Large
        text: buttons.extraText
        available: buttons.extraEnabled
        onClicked: buttons.extraAsked()
    }
    LaunchButton {
        id: confirmButton

        size: LaunchButton.Medium
        text: buttons.confirmText
        available: buttons.confirmEnabled
        destructive: buttons.destructive
        onClicked: buttons.confirmed()
    }
}
