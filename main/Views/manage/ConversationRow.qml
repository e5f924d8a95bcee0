// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import Selvane

/// One conversation, below its day if it is the day's first. If selected, it has what can be done with it.
Item {
    id: row

    required property string title
    required property bool isGivenTitle
    required property string place
    required property string profiles
    required property profileLook look
    required property bool isTerminal
    required property string mark
    required property bool isLost
    required property string activity
    required property string size
    required property string shortId
    required property bool isFirst
    required property bool isLast
    required property string excerpt
    required property string section
    required property string description
    required property bool isSelected
    required property bool isRinged

    readonly property real cardTop: isFirst ? Theme.manage.conversationSection : 0 ///< of the card, below the day
    readonly property real textRight: width - Theme.manage.conversationAside - 2 * Theme.space16

    signal pressed
    signal continueAsked
    signal commandAsked
    signal showAsked

    implicitHeight: cardTop + Theme.manage.conversationHeight + (isSelected ? Theme.manage.conversationActions : 0)

    Accessible.role: Accessible.ListItem
    Accessible.name: description
    Accessible.focusable: true
    Accessible.selectable: true
    Accessible.selected: isSelected
    Accessible.onPressAction: row.pressed()

    Eyebrow {
        visible: row.isFirst
        y: row.cardTop - height - Theme.space8
        text: row.isFirst ? row.section : ""
        Accessible.role: Accessible.Heading
    }
    Item {
        y: row.cardTop
        width: row.width
        height: row.height - y

        // A piece of the card that its day has.
        Item {
            anchors.fill: parent
            clip: true

            Rectangle {
                y: row.isFirst ? 0 : -Theme.radiusCard
                width: parent.width
                height: parent.height - y + (row.isLast ? 0 : Theme.radiusCard)
                radius: Theme.radiusCard
                color: row.isSelected ? Theme.raised : area.containsMouse ? Theme.rowHover : Theme.surface
                border.width: Theme.hairline
                border.color: Theme.separator
            }
            Rectangle {
                anchors.bottom: parent.bottom
                visible: !row.isLast
                width: parent.width
                height: Theme.hairline
                color: Theme.separator
            }
        }
        FocusRing {
            controlRadius: Theme.radiusCard
            visible: row.isRinged
        }
        MouseArea {
            id: area

            anchors.fill: parent
            hoverEnabled: true
            onClicked: row.pressed()
            onDoubleClicked: row.continueAsked()
        }
        ProfileGlyph {
            x: Theme.space16
            y: Math.round((Theme.manage.conversationHeight - height) / 2)
            size: Theme.manage.conversationGlyph
            look: row.look
            isLit: row.isSelected
        }
        Row {
            x: Theme.manage.conversationTextLeft
            y: Theme.space10
            spacing: Theme.space8

            StyledText {
                anchors.verticalCenter: parent.verticalCenter
                width: Math.min(implicitWidth, row.textRight - parent.x - badge.room)
                look: row.isGivenTitle ? Theme.type.control : Theme.type.summary
                text: row.title
                elide: Text.ElideRight
            }
            Badge {
                id: badge

                readonly property real room: visible ? width + Theme.space8 : 0

                anchors.verticalCenter: parent.verticalCenter
                visible: row.mark !== ""
                kind: row.isLost ? Badge.Broken : Badge.Own
                text: row.mark
                isRowHovered: row.isSelected
            }
        }
        Row {
            x: Theme.manage.conversationTextLeft
            y: Theme.manage.conversationHeight - height - Theme.space10
            spacing: Theme.space6

            PathIcon {
                id: icon

                anchors.verticalCenter: parent.verticalCenter
                symbol: row.isTerminal ? "terminal" : "macwindow"
                size: Theme.iconSmall
                weight: PathIcon.Regular
                color: Theme.textFaint
            }
            StyledText {
                anchors.verticalCenter: parent.verticalCenter
                width: Math.min(implicitWidth,
                                (row.textRight - parent.x - icon.width) * Theme.manage.conversationPlaceShare)
                look: row.excerpt === "" ? Theme.type.listPath : Theme.type.small
                text: row.excerpt === "" ? row.place : row.excerpt
                color: row.excerpt === "" ? Theme.textFaint : Theme.textSoft
                elide: row.excerpt === "" ? Text.ElideMiddle : Text.ElideRight
            }
            StyledText {
                anchors.verticalCenter: parent.verticalCenter
                visible: row.place !== "" || row.excerpt !== ""
                look: Theme.type.small
                text: "·"
                color: Theme.textFaint
            }
            StyledText {
                anchors.verticalCenter: parent.verticalCenter
                width: Math.max(0, Math.min(implicitWidth, row.textRight - parent.x - x))
                look: Theme.type.small
                text: row.profiles
                color: Theme.textSoft
                elide: Text.ElideRight
            }
        }
        Column {
            anchors { right: parent.right; rightMargin: Theme.space16 }
            y: Theme.space10
            width: Theme.manage.conversationAside
            spacing: Theme.space4

            StyledText {
                width: parent.width
                horizontalAlignment: Text.AlignRight
                look: Theme.type.small
                text: row.activity
                color: Theme.textSoft
                elide: Text.ElideRight
            }
            StyledText {
                width: parent.width
                horizontalAlignment: Text.AlignRight
                look: Theme.type.small
                text: row.size
                color: Theme.textFaint
            }
        }
        ConversationActions {
            x: Theme.manage.conversationTextLeft
            y: Theme.manage.conversationHeight - Theme.space2
            width: parent.width - x - Theme.space16
            visible: row.isSelected
            isLost: row.isLost
            shortId: row.shortId
            onContinueAsked: row.continueAsked()
            onCommandAsked: row.commandAsked()
            onShowAsked: row.showAsked()
        }
    }
}
