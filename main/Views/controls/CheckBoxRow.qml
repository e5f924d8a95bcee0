// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import Selvane

/// A check box with its text and a path below, perhaps with a badge and more text at the end. In a list, the whole row can be clicked.
Choice {
    id: row

    required property string text
    property string detail
    property string aside
    property string mark
    property bool inList: false ///< lights up under the pointer, with its content inset from the edges
    property bool fadesUnchecked: false

    signal toggled(bool checked)

    label: text
    implicitWidth: texts.x + Math.max(caption.implicitWidth, path.implicitWidth)
    implicitHeight: detail !== "" ? Theme.controls.pathRow : inList ? Theme.controls.listRow
                                                                    : Theme.controls.rowTarget

    Accessible.description: `${detail} ${aside} ${mark}`.trim()

    onClicked: toggled(!checked)

    Rectangle {
        anchors.fill: parent
        visible: row.inList && row.hovered
        color: Theme.raised
    }
    CheckMark {
        id: box

        anchors.verticalCenter: parent.verticalCenter
        x: row.inList ? Theme.space16 : 0
        checked: row.checked
        ringed: row.ringed
    }
    Column {
        id: texts

        anchors.verticalCenter: parent.verticalCenter
        x: box.x + box.width + Theme.space12
        width: row.width - x - (row.inList ? Theme.space16 : 0) - (end.width > 0 ? end.width + Theme.space12 : 0)

        StyledText {
            id: caption

            width: parent.width
            look: row.detail !== "" ? Theme.type.menuLabel : Theme.type.control
            text: row.text
            color: row.checked || !row.fadesUnchecked ? Theme.text : Theme.textSoft
            elide: Text.ElideRight
        }
        StyledText {
            id: path

            width: parent.width
            visible: row.detail !== ""
            look: Theme.type.listPath
            text: row.detail
            color: Theme.textFaint
            elide: Text.ElideMiddle
        }
    }
    Row {
        id: end

        anchors { right: parent.right; rightMargin: Theme.space16; verticalCenter: parent.verticalCenter }
        spacing: Theme.space8

        Badge {
            anchors.verticalCenter: parent.verticalCenter
            visible: row.mark !== ""
            kind: Badge.Own
            text: row.mark
            isRowHovered: row.hovered
            Accessible.ignored: true
        }
        StyledText {
            anchors.verticalCenter: parent.verticalCenter
            visible: row.aside !== ""
            look: Theme.type.small
            text: row.aside
            color: Theme.textFaint
        }
    }
}
