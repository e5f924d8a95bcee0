// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import Selvane

/// Which conversations are listed, apart from what is typed. What doesn't fit goes on below.
Item {
    id: filters

    required property ConversationListModel conversations

    implicitHeight: choices.height

    /// Between two groups that stand beside each other.
    component Divider: Item {
        id: divider

        required property Item next

        width: Theme.hairline
        height: Theme.controls.smallHeight

        Rectangle {
            anchors.centerIn: parent
            width: parent.width
            height: Theme.space16
            visible: divider.next.y === divider.parent.y
            color: Theme.separator
        }
    }

    Flow {
        id: choices

        width: parent.width - hint.width - Theme.space12
        spacing: Theme.space8

        Row {
            spacing: Theme.space8

            DropDown {
                label: qsTr("Profilo")
                isChip: true
                labels: filters.conversations.profiles
                currentIndex: filters.conversations.profile
                onChosen: index => filters.conversations.profile = index
            }
            DropDown {
                label: qsTr("Cartella")
                isChip: true
                labels: filters.conversations.folders
                currentIndex: filters.conversations.folder
                onChosen: index => filters.conversations.folder = index
            }
            Divider { next: origins }
        }
        Row {
            id: origins

            spacing: Theme.space8

            Chip {
                text: qsTr("App")
                checked: filters.conversations.fromApp
                onToggled: checked => filters.conversations.fromApp = checked
            }
            Chip {
                text: qsTr("Terminale")
                checked: filters.conversations.fromTerminal
                onToggled: checked => filters.conversations.fromTerminal = checked
            }
            Divider { next: period }
        }
        DropDown {
            id: period

            label: qsTr("Periodo")
            isChip: true
            labels: filters.conversations.periods
            currentIndex: filters.conversations.period
            onChosen: index => filters.conversations.period = index
        }
    }
    Item {
        id: hint

        anchors.right: parent.right
        width: Math.max(order.implicitWidth, link.implicitWidth)
        height: Theme.controls.smallHeight

        StyledText {
            id: order

            anchors { right: parent.right; verticalCenter: parent.verticalCenter }
            visible: !link.visible
            look: Theme.type.small
            text: qsTr("Più recenti prima")
            color: Theme.textFaint
        }
        TextLink {
            id: link

            anchors { right: parent.right; verticalCenter: parent.verticalCenter }
            visible: filters.conversations.search.trim() !== ""
                     && (filters.conversations.isSearching || !filters.conversations.showsHits)
            text: filters.conversations.isSearching ? qsTr("Ferma la ricerca") : qsTr("Cerca nel testo")
            onClicked: {
                if (filters.conversations.isSearching)
                    filters.conversations.stopSearch()
                else
                    filters.conversations.searchTexts()
            }
        }
    }
}
