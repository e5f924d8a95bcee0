// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import Selvane

/// A question or an error. The focus starts on the confirm button, or on "Annulla" if confirming is
/// destructive.
ModalLayer {
    id: alert

    required property string message
    property string confirmText: qsTr("OK")
    property string cancelText: qsTr("Annulla") ///< empty: no cancel button
    property bool destructive: false
    property bool isError: false

    z: Theme.alertLayer
    firstFocus: destructive && cancelText !== "" ? buttons.cancelButton : buttons.confirmButton
    plateWidth: Theme.sheets.alertWidth
    plateHeight: texts.height + buttons.height + 2 * Theme.space24 + Theme.space20

    Accessible.role: Accessible.AlertMessage
    Accessible.description: message

    PathIcon {
        id: sign

        x: Theme.space24
        y: Theme.space24 + Math.round((Theme.type.alertTitle.lineHeight - height) / 2)
        visible: alert.isError
        symbol: "exclamationmark.triangle"
        size: Theme.sheets.alertSign
        color: Theme.danger
    }
    Column {
        id: texts

        x: alert.isError ? sign.x + sign.width + Theme.space12 : Theme.space24
        y: Theme.space24
        width: parent.width - x - Theme.space24
        spacing: Theme.space6

        StyledText {
            width: parent.width
            look: Theme.type.alertTitle
            text: alert.title
            wrapMode: Text.Wrap
        }
        StyledText {
            width: parent.width
            look: Theme.type.body
            text: alert.message
            color: Theme.textSoft
            wrapMode: Text.Wrap
        }
    }
    DialogButtons {
        id: buttons

        anchors.right: parent.right
        anchors.bottom: parent.bottom
        anchors.margins: Theme.space24
        confirmText: alert.confirmText
        cancelText: alert.cancelText
        destructive: alert.destructive
        onConfirmed: alert.confirm()
        onCancelled: alert.cancel()
    }
}
