// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import Selvane

/// A field under the header of a long list that leaves only the items whose name holds what is typed.
Item {
    id: row

    required property ItemListModel items
    required property string prompt

    signal downPressed

    function take(): void {
        field.forceActiveFocus(Qt.TabFocusReason)
    }

    implicitHeight: Theme.manage.filterHeight

    Rectangle {
        width: parent.width
        height: Theme.hairline
        color: Theme.separator
    }
    PathIcon {
        anchors.verticalCenter: parent.verticalCenter
        x: Theme.manage.itemIconLeft - Theme.hairline
        name: "magnifying-glass"
        size: Theme.iconControl
        color: Theme.textFaint
    }
    FieldInput {
        id: field

        x: Theme.manage.itemTextLeft - Theme.hairline
        y: Theme.hairline
        width: tally.x - x - Theme.space12
        height: parent.height - y
        look: Theme.type.body
        label: row.prompt
        placeholder: row.prompt
        text: row.items.filter
        onTextEdited: {
            row.items.filter = text
            if (tally.visible)
                Announcer.announce(tally, tally.text)
        }
        Keys.onEscapePressed: event => {
            event.accepted = text !== ""
            row.items.filter = ""
        }
        Keys.onDownPressed: row.downPressed()
        Keys.onReturnPressed: row.downPressed()
        Keys.onEnterPressed: row.downPressed()
    }
    StyledText {
        id: tally

        anchors { right: parent.right; rightMargin: Theme.space16; verticalCenter: parent.verticalCenter }
        visible: row.items.filter !== ""
        look: Theme.type.small
        text: row.items.count === 0 ? qsTr("Nessun elemento con «%1»").arg(row.items.filter.trim())
                                    : qsTr("%1 di %2").arg(row.items.count).arg(row.items.total)
        color: Theme.textFaint
        Accessible.role: Accessible.StaticText
        Accessible.name: text
    }
    Rectangle {
        anchors { fill: parent; leftMargin: Theme.hairline; rightMargin: Theme.hairline; topMargin: Theme.hairline }
        visible: field.activeFocus && Theme.showsFocus
        radius: Theme.radiusControl
        color: Theme.transparent
        border.width: Theme.thickLine
        border.color: Theme.focusRing
    }
}
