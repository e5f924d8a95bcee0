// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import Selvane

/// Commands for the whole profile.
Item {
    id: bar

    required property bool isNarrow

    signal commandAsked
    signal duplicateAsked
    signal revealAsked
    signal deleteAsked

    implicitHeight: Theme.manage.toolBarHeight

    Accessible.role: Accessible.ToolBar
    Accessible.name: qsTr("Profilo")

    Rectangle {
        anchors.bottom: parent.bottom
        width: parent.width
        height: Theme.hairline
        color: Theme.separator
    }
    Row {
        anchors { right: parent.right; verticalCenter: parent.verticalCenter }
        anchors.rightMargin: bar.isNarrow ? Theme.manage.toolBarInsetNarrow : Theme.manage.toolBarInset
        spacing: Theme.space4

        DetailToolButton {
            title: qsTr("Comando terminale")
            symbol: "terminal"
            explanation: qsTr("Copia il comando per usare questo profilo con il CLI di Claude Code")
            isIconAlone: bar.isNarrow
            onClicked: bar.commandAsked()
        }
        DetailToolButton {
            title: qsTr("Nuovo profilo da questo")
            symbol: "plus.square.on.square"
            explanation: qsTr("Crea un nuovo profilo partendo da questo")
            isIconAlone: bar.isNarrow
            onClicked: bar.duplicateAsked()
        }
        DetailToolButton {
            title: Theme.revealText
            symbol: "folder"
            isIconAlone: bar.isNarrow
            onClicked: bar.revealAsked()
        }
        DetailToolButton {
            title: qsTr("Elimina")
            symbol: "trash"
            isIconAlone: bar.isNarrow
            onClicked: bar.deleteAsked()
        }
    }
}
