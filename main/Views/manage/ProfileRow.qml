// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import Selvane

/// One profile in the sidebar.
Item {
    id: row

    required property string name
    required property string subtitle
    required property profileLook look
    required property list<int> foundInName
    required property string sourceName
    required property bool hasOwnAccount
    required property bool hasSource
    required property bool isActive
    required property bool isRunning
    required property bool isSelected
    required property bool isRinged

    signal pressed
    signal menuAsked(real x, real y)

    implicitHeight: Theme.manage.profileHeight
    ListView.onPooled: visible = false // also to screen readers
    ListView.onReused: visible = true

    Accessible.role: Accessible.ListItem
    Accessible.name: name
    Accessible.description: marks.meaning === "" ? row.subtitle : row.subtitle + ", " + marks.meaning
    Accessible.selectable: true
    Accessible.selected: isSelected
    Accessible.focusable: true
    Accessible.focused: isRinged
    Accessible.onPressAction: {
        if (row.enabled)
            row.pressed()
    }

    HoverHandler {
        id: pointer
    }
    Rectangle {
        anchors.fill: parent
        radius: Theme.radiusCard
        color: row.isSelected ? Theme.raised : pointer.hovered ? Theme.rowHover : Qt.alpha(Theme.raised, 0)
        border.width: row.isRinged ? Theme.thickLine : 0
        border.color: Theme.focusRing

        Behavior on color {
            ColorAnimation { duration: Theme.motion.hover }
        }
    }
    MouseArea {
        anchors.fill: parent
        acceptedButtons: Qt.LeftButton | Qt.RightButton
        onClicked: mouse => {
            if (mouse.button === Qt.RightButton)
                row.menuAsked(mouse.x, mouse.y)
            else
                row.pressed()
        }
    }
    ProfileGlyph {
        id: glyph

        anchors.verticalCenter: parent.verticalCenter
        x: Theme.space8
        size: Theme.manage.profileGlyph
        look: row.look
        isLit: row.isSelected
    }
    Column {
        x: glyph.x + glyph.width + Theme.space12
        y: Math.floor((row.height - height) / 2)
        width: marks.x - x - Theme.space8
        spacing: Theme.hairline

        FoundText {
            width: parent.width
            found: row.foundInName
            look: Theme.type.rowName
            text: row.name
            elide: Text.ElideRight
            Accessible.ignored: true
        }
        StyledText {
            width: parent.width
            look: Theme.type.small
            text: row.subtitle
            color: row.isSelected ? Theme.textSoft : Theme.textFaint
            elide: Text.ElideRight
            Accessible.ignored: true
        }
    }
    ProfileMarks {
        id: marks

        anchors { right: parent.right; rightMargin: Theme.space12; verticalCenter: parent.verticalCenter }
        sourceName: row.sourceName
        hasOwnAccount: row.hasOwnAccount
        hasSource: row.hasSource
        isActive: row.isActive
        isRunning: row.isRunning
        onPressed: row.pressed()
    }
}
