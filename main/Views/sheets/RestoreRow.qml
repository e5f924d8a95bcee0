// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import Selvane

/// A part of an archive that can be restored, and what becomes of what is there.
Choice {
    id: row

    required property string title
    required property string detail
    required property string aside
    required property string mark
    required property string group
    required property profileLook look
    required property bool isProfile

    label: title
    implicitHeight: Theme.controls.listRow

    Accessible.description: Array.of(group, detail, mark, aside).filter(text => text !== "").join(", ")

    Rectangle {
        anchors.fill: parent
        visible: row.hovered
        color: Theme.raised
    }
    Rectangle {
        anchors.bottom: parent.bottom
        width: parent.width
        height: Theme.hairline
        color: Theme.separator
    }
    CheckMark {
        id: box

        anchors.verticalCenter: parent.verticalCenter
        x: Theme.space16
        checked: row.checked
        ringed: row.ringed
    }
    ProfileGlyph {
        id: glyph

        anchors { left: box.right; leftMargin: Theme.space12; verticalCenter: parent.verticalCenter }
        visible: row.isProfile
        size: Theme.sheets.restoreGlyph
        look: row.look
    }
    PathIcon {
        anchors.centerIn: glyph
        visible: !row.isProfile
        symbol: row.look.symbol
        size: Theme.controls.gridIcon
        color: Theme.textSoft
    }
    StyledText {
        id: caption

        anchors { left: glyph.right; leftMargin: Theme.space12; verticalCenter: parent.verticalCenter }
        width: Math.min(implicitWidth, fate.x - x - Theme.space12)
        look: Theme.type.control
        text: row.title
        color: row.checked ? Theme.text : Theme.textSoft
        elide: Text.ElideRight
    }
    StyledText {
        anchors { left: caption.right; leftMargin: Theme.space8; verticalCenter: parent.verticalCenter }
        width: Math.max(0, Math.min(implicitWidth, fate.x - x - Theme.space12))
        look: Theme.type.small
        text: row.detail
        color: Theme.textFaint
        elide: Text.ElideRight
    }
    Row {
        id: fate

        anchors { right: parent.right; rightMargin: Theme.space16; verticalCenter: parent.verticalCenter }
        spacing: Theme.space6

        PathIcon {
            anchors.verticalCenter: parent.verticalCenter
            visible: row.aside !== ""
            symbol: "trash"
            size: Theme.iconSmall
            color: Theme.textFaint
        }
        StyledText {
            anchors.verticalCenter: parent.verticalCenter
            visible: row.aside !== ""
            look: Theme.type.small
            text: row.aside
            color: Theme.textFaint
        }
        Badge {
            anchors.verticalCenter: parent.verticalCenter
            visible: row.mark !== ""
            kind: Badge.Own
            text: row.mark
            isRowHovered: row.hovered
            Accessible.ignored: true
        }
    }
}
