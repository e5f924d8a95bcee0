// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import Selvane

/// The top of a component's section: its icon and title, and how the profile takes it from its source. Pressing it
/// anywhere else shows or hides the section's content; so do the right and the left arrow key.
Item {
    id: header

    required property ComponentModel component
    property string note

    signal relinkAsked
    signal openAsked(bool open)

    /// Where title and note must end.
    readonly property real end: (mark.visible ? mark.x : mode.x) - Theme.space12

    function take(): void {
        fold.forceActiveFocus(Qt.TabFocusReason)
    }

    implicitHeight: Theme.manage.sectionHeader

    Pressable {
        id: fold

        anchors.fill: parent
        label: header.component.title
        takesFocusOnClick: true
        onClicked: header.openAsked(!header.component.isOpen)
        Keys.onLeftPressed: header.openAsked(false)
        Keys.onRightPressed: header.openAsked(true)

        Expandable {
            isExpanded: header.component.isOpen
            description: header.note
        }
        PathIcon {
            anchors.verticalCenter: parent.verticalCenter
            x: Theme.space16
            symbol: header.component.symbol
            size: Theme.iconAlone
            color: Theme.textSoft
        }
        SectionTitle {
            id: heading

            anchors.verticalCenter: parent.verticalCenter
            x: Theme.manage.itemTextLeft
            width: Math.min(implicitWidth, header.end - x)
            text: header.component.title
            Accessible.ignored: true
        }
        StyledText {
            anchors.verticalCenter: parent.verticalCenter
            x: heading.x + heading.width + Theme.space12
            width: header.end - x
            visible: header.note !== "" && width > 0
            look: Theme.type.small
            text: header.note
            color: Theme.textFaint
            elide: Text.ElideRight
            Accessible.ignored: true
        }
        PathIcon {
            id: caret

            readonly property int upsideDown: 180 // degrees

            anchors.verticalCenter: parent.verticalCenter
            x: parent.width - Theme.manage.itemMenuRight - (Theme.controls.smallHeight + width) / 2
            width: Theme.iconCaret
            name: "caret-down"
            size: Theme.iconCaret
            color: fold.hovered ? Theme.text : Theme.textSoft
            rotation: header.component.isOpen ? upsideDown : 0

            Behavior on rotation {
                NumberAnimation { duration: Theme.motion.toggle }
            }
        }
        Rectangle {
            anchors { fill: parent; margins: Theme.hairline }
            visible: fold.ringed
            radius: Theme.radiusCard
            color: Theme.transparent
            border.width: Theme.thickLine
            border.color: Theme.focusRing
        }
    }
    ChangedMark {
        id: mark

        anchors.verticalCenter: parent.verticalCenter
        x: mode.x - width - Theme.space16
        component: header.component
        onRelinkAsked: header.relinkAsked()
    }
    DropDown {
        id: mode

        readonly property real endsAt: header.width - Theme.manage.itemMenuRight - Theme.controls.smallHeight
                                      - Theme.manage.itemBadgeGap

        anchors.verticalCenter: parent.verticalCenter
        x: header.component.hasModes ? endsAt - width : endsAt
        visible: header.component.hasModes
        size: DropDown.Small
        label: header.component.title
        labels: header.component.modes
        explanations: header.component.modeExplanations
        currentIndex: header.component.modeIndex
        onChosen: index => header.component.setMode(index)
    }
}
