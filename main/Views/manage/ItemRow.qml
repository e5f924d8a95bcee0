// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import Selvane

/// One item of a component: its name and where it comes from.
Item {
    id: row

    required property int index
    required property string name
    required property int kind
    required property bool isLink
    required property string sourceName
    required property bool isFeminine
    property bool hasMenu: false ///< whether its menu is open

    readonly property string origin: {
        switch (row.kind) {
        case ItemListModel.Merged:
            return qsTr("unificata con «%1»").arg(row.sourceName)
        case ItemListModel.Linked:
            return qsTr("collegata")
        case ItemListModel.Broken:
            return qsTr("collegamento interrotto")
        case ItemListModel.Changed:
            return row.isFeminine ? qsTr("modificata qui") : qsTr("modificato qui")
        default:
            return qsTr("propria")
        }
    }

    readonly property bool isChanged: kind === ItemListModel.Changed
    readonly property bool isBroken: kind === ItemListModel.Broken
    readonly property bool isRaised: pointer.hovered || hasMenu

    signal pressed
    signal menuAsked(var pointer) ///< where it is in the row; null for the button

    implicitHeight: Theme.manage.itemHeight
    ListView.onPooled: visible = false // also to screen readers
    ListView.onReused: visible = true

    Accessible.role: Accessible.ListItem
    Accessible.name: name
    Accessible.description: origin

    HoverHandler {
        id: pointer
    }
    MouseArea {
        anchors.fill: parent
        acceptedButtons: Qt.LeftButton | Qt.RightButton
        onClicked: mouse => {
            row.pressed()
            if (mouse.button === Qt.RightButton)
                row.menuAsked(Qt.point(mouse.x, mouse.y))
        }
    }
    Rectangle {
        anchors.fill: parent
        color: row.isRaised ? Theme.raised : Qt.alpha(Theme.raised, 0)

        Rectangle {
            width: parent.width
            height: Theme.hairline
            color: Theme.separator
        }
    }
    PathIcon {
        anchors.verticalCenter: parent.verticalCenter
        x: Theme.manage.itemIconLeft - Theme.hairline
        name: row.isLink || row.isChanged ? "" : "file-text"
        symbol: row.isBroken || row.isChanged ? "exclamationmark.triangle" : "link"
        size: Theme.iconControl
        color: row.isBroken ? Theme.danger : row.isChanged ? Theme.lit : row.isLink ? Theme.linked : Theme.textFaint
    }
    StyledText {
        anchors.verticalCenter: parent.verticalCenter
        x: Theme.manage.itemTextLeft - Theme.hairline
        width: badge.x - x - Theme.space12
        look: Theme.type.control
        text: row.name
        elide: Text.ElideRight
        Accessible.ignored: true
    }
    Badge {
        id: badge

        readonly property real room: menuButton.x - Theme.manage.itemBadgeGap - Theme.manage.itemTextLeft
                                     - Theme.manage.itemNameLeast - Theme.space12

        anchors.verticalCenter: parent.verticalCenter
        x: menuButton.x - Theme.manage.itemBadgeGap - width
        width: Math.min(implicitWidth, room)
        kind: row.kind
        text: row.origin
        isRowHovered: row.isRaised
        Accessible.ignored: true
    }
    GhostButton {
        id: menuButton

        anchors { right: parent.right; verticalCenter: parent.verticalCenter }
        anchors.rightMargin: Theme.manage.itemMenuRight - Theme.hairline
        tabStop: false
        bare: true
        size: GhostButton.Small
        symbol: "ellipsis.circle"
        held: row.hasMenu
        label: qsTr("Azioni per «%1»").arg(row.name)
        onClicked: row.menuAsked(null)
    }
}
