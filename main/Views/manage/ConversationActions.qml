// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import Selvane

/// What can be done with the selected conversation.
Item {
    id: actions

    required property bool isLost ///< its text is missing
    required property string shortId

    signal continueAsked
    signal commandAsked
    signal showAsked

    implicitHeight: Theme.controls.smallHeight

    Row {
        spacing: Theme.space8

        LaunchButton {
            size: LaunchButton.Small
            text: qsTr("Continua in…")
            available: !actions.isLost
            opacity: available ? 1 : Theme.disabledOpacity
            onClicked: actions.continueAsked()
        }
        GhostButton {
            size: GhostButton.Small
            symbol: "doc.on.doc"
            text: qsTr("Copia comando")
            help: Theme.keyText(qsTr("Copia il comando per riprenderla nel terminale (⌘Maiusc+C)"))
            available: !actions.isLost
            onClicked: actions.commandAsked()
        }
        GhostButton {
            size: GhostButton.Small
            symbol: "folder"
            text: qsTr("Mostra")
            help: Theme.revealText
            onClicked: actions.showAsked()
        }
    }
    StyledText {
        anchors { right: parent.right; verticalCenter: parent.verticalCenter }
        look: Theme.type.listPath
        text: actions.shortId
        color: Theme.textFaint
        Accessible.ignored: true
    }
}
