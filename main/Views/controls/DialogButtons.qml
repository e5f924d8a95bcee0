// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import Selvane

/// The two buttons of a sheet or an alert.
Row {
    id: buttons

    required property string confirmText
    property string cancelText: qsTr("Annulla") ///< empty: no cancel button
    property bool confirmEnabled: true
    property bool destructive: false

    property alias confirmButton: confirmButton
    property alias cancelButton: cancelButton

    signal confirmed
    signal cancelled

    spacing: Theme.space12

    GhostButton {
        id: cancelButton

        visible: text !== ""
        size: GhostButton.Large
        text: buttons.cancelText
        onClicked: buttons.cancelled()
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
