// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import Selvane

/// A switch with its text, which can be clicked too. The switch is at the end, or before the text.
Item {
    id: row

    required property string text
    required property bool checked
    property TextStyle look: Theme.type.control
    property color textColor: Theme.text
    property string help
    property bool leading: false ///< puts the switch before the text
    property string detail ///< a second line

    signal toggled(bool checked)

    implicitWidth: Math.max(caption.implicitWidth, note.implicitWidth) + toggle.implicitWidth + Theme.space12
    implicitHeight: Math.max(texts.implicitHeight, Theme.controls.switchRow)

    MouseArea {
        anchors.fill: parent
        onClicked: toggle.press()
    }
    Column {
        id: texts

        anchors.verticalCenter: parent.verticalCenter
        x: row.leading ? toggle.width + Theme.space12 : 0
        width: row.width - toggle.width - Theme.space12
        spacing: Theme.space2

        StyledText {
            id: caption

            width: parent.width
            look: row.look
            text: row.text
            color: row.textColor
            wrapMode: Text.Wrap
            Accessible.ignored: true
        }
        StyledText {
            id: note

            width: parent.width
            visible: row.detail !== ""
            look: Theme.type.small
            text: Theme.withPaths(row.detail, look)
            textFormat: Text.RichText
            color: Theme.textSoft
            wrapMode: Text.Wrap
        }
    }
    ToggleSwitch {
        id: toggle

        anchors.verticalCenter: parent.verticalCenter
        x: row.leading ? 0 : row.width - width
        label: row.text
        help: row.help
        checked: row.checked
        onToggled: checked => row.toggled(checked)
    }
}
