// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import Selvane

/// A question or an error. The focus starts on the confirm button, or on "Annulla" if confirming ends
/// something.
ModalLayer {
    id: alert

    required property string message
    property string confirmText: qsTr("OK")
    property string cancelText: qsTr("Annulla") ///< empty: no cancel button
    property bool destructive: false
    property bool isError: false
    property string warning ///< what confirming ends, below the message
    property bool startsOnCancel: destructive
    property real textTop: Theme.space24 ///< leaves room for a picture above

    z: Theme.alertLayer
    firstFocus: startsOnCancel && cancelText !== "" ? buttons.cancelButton : buttons.confirmButton
    plateWidth: Theme.sheets.alertWidth
    plateHeight: textTop + texts.height + Theme.space20 + buttons.height + Theme.space24

    Accessible.role: Accessible.AlertMessage
    Accessible.description: warning === "" ? message : message + " " + warning

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
        y: alert.textTop
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
        Row {
            visible: alert.warning !== ""
            spacing: Theme.space8

            PathIcon {
                y: Theme.space6 + Math.round((Theme.type.notice.lineHeight - height) / 2)
                symbol: "exclamationmark.triangle"
                size: Theme.iconControl
                color: Theme.danger
            }
            StyledText {
                topPadding: Theme.space6
                look: Theme.type.notice
                text: alert.warning
                color: Theme.danger
            }
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
