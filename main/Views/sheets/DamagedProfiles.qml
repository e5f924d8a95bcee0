// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import Selvane

/// The profiles whose record can't be read, below the others: what they are and what to do about them. In one
/// row, or one below the other where it is narrow.
ListView {
    id: list

    required property AppModel app
    property bool isNarrow: false

    orientation: isNarrow ? ListView.Vertical : ListView.Horizontal
    spacing: isNarrow ? Theme.space12 : Theme.space24
    boundsBehavior: Flickable.StopAtBounds
    clip: true
    visible: count > 0
    model: app.damaged

    Accessible.role: Accessible.List
    Accessible.name: qsTr("Profili danneggiati")

    StripFade {
        parent: list
        visible: !list.isNarrow && !list.atXBeginning
    }
    StripFade {
        parent: list
        visible: !list.isNarrow && !list.atXEnd
        isRight: true
    }

    delegate: Item {
        id: entry

        required property string modelData
        required property int index

        /// So that Tab reaches those at the end too: the row may be wider than the window.
        function bringIntoSight(): void {
            if (list.isNarrow)
                list.positionViewAtIndex(entry.index, ListView.Contain)
            else
                list.contentX = Math.max(list.originX, entry.x + entry.width - list.width)
        }

        width: list.isNarrow ? list.width : buttons.x + buttons.width
        height: list.isNarrow ? buttons.y + buttons.height : buttons.height

        IconNote {
            id: note

            width: list.isNarrow ? list.width : implicitWidth
            anchors.verticalCenter: list.isNarrow ? undefined : parent.verticalCenter
            symbol: "exclamationmark.triangle"
            look: Theme.type.small
            text: qsTr("«%1» è danneggiato").arg(entry.modelData)
        }
        Row {
            id: buttons

            x: list.isNarrow ? 0 : note.width + Theme.space12
            y: list.isNarrow ? note.height + Theme.space6 : 0
            spacing: Theme.space8

            GhostButton {
                size: GhostButton.Small
                text: qsTr("Mostra")
                label: qsTr("Mostra «%1»").arg(entry.modelData)
                help: qsTr("Mostra la cartella del profilo")
                onClicked: list.app.revealDamaged(entry.index)
                onActiveFocusChanged: entry.bringIntoSight()
            }
            GhostButton {
                size: GhostButton.Small
                text: qsTr("Ripara")
                label: qsTr("Ripara «%1»").arg(entry.modelData)
                help: qsTr("Sposta nel Cestino ciò che è danneggiato e rimette il profilo fra gli altri")
                onClicked: list.app.repairDamaged(entry.index)
                onActiveFocusChanged: entry.bringIntoSight()
            }
        }
    }
}
