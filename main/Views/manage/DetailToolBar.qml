// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import Selvane

/// Commands for the whole profile.
Item {
    id: bar

    required property bool isNarrow
    required property string deletionRefusal ///< shown instead of the button to delete; empty if it can be used

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
        StyledText {
            anchors.verticalCenter: parent.verticalCenter
            visible: bar.deletionRefusal !== ""
            leftPadding: Theme.space10
            width: Math.min(implicitWidth, Theme.manage.toolBarNote)
            look: Theme.type.small
            text: bar.deletionRefusal
            color: Theme.textFaint
            wrapMode: Text.Wrap
            maximumLineCount: 2
            elide: Text.ElideRight
            Accessible.role: Accessible.StaticText
            Accessible.name: text
        }
        DetailToolButton {
            visible: bar.deletionRefusal === ""
            title: qsTr("Elimina")
            symbol: "trash"
            isIconAlone: bar.isNarrow
            onClicked: bar.deleteAsked()
        }
    }
}
