// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import Selvane

/// One component of the source: how the new profile takes it, and which items.
Item {
    id: row

    required property string title
    required property string symbol
    required property list<string> modeLabels
    required property list<string> modeExplanations
    required property int modeIndex
    required property ChoiceListModel items ///< null unless it is a folder
    property bool expanded: false

    readonly property real inset: icon.width + icon.anchors.rightMargin
    readonly property real shownRows: Math.min(list.contentHeight, Theme.sheets.checklistRows * list.rowHeight)

    signal modeChosen(int index)

    implicitHeight: content.y + content.height

    Rectangle {
        width: parent.width
        height: Theme.hairline
        color: Theme.separator
    }
    Column {
        id: content

        y: Theme.hairline
        width: parent.width
        topPadding: Theme.space10
        bottomPadding: row.items ? Theme.space8 : Theme.space10
        spacing: Theme.space2

        Item {
            width: parent.width
            height: modes.height

            PathIcon {
                id: icon

                anchors.verticalCenter: parent.verticalCenter
                anchors.rightMargin: Theme.space10
                symbol: row.symbol
                size: Theme.iconAlone
                color: Theme.textSoft
            }
            StyledText {
                anchors.verticalCenter: parent.verticalCenter
                anchors.left: icon.right
                anchors.leftMargin: Theme.space10
                anchors.right: modes.left
                anchors.rightMargin: Theme.space12
                look: Theme.type.control
                text: row.title
                elide: Text.ElideRight
                Accessible.role: Accessible.Heading
                Accessible.name: text
            }
            DropDown {
                id: modes

                anchors.right: parent.right
                size: DropDown.Small
                label: row.title
                labels: row.modeLabels
                explanations: row.modeExplanations
                currentIndex: row.modeIndex
                onChosen: index => row.modeChosen(index)
            }
        }
        Item {
            width: parent.width
            height: count.height
            visible: row.items !== null

            Disclosure {
                id: count

                readonly property int chosen: row.items?.chosenCount ?? 0

                x: row.inset
                text: (chosen === 1 ? qsTr("%1 di %2 selezionato") : qsTr("%1 di %2 selezionati"))
                      .arg(chosen).arg(row.items?.total ?? 0)
                label: row.title + ": " + text
                expandable: (row.items?.total ?? 0) > 0
                expanded: row.expanded
                onToggled: expanded => row.expanded = expanded
            }
            ChoiceLinks {
                anchors.right: parent.right
                visible: count.expandable
                choices: row.items
                allText: qsTr("Tutti")
                noneText: qsTr("Nessuno")
                subject: row.title
            }
        }
        Checklist {
            id: list

            x: row.inset
            width: parent.width - x
            height: row.shownRows
            visible: row.expanded && count.expandable
            choices: row.expanded ? row.items : null
            label: row.title
            columns: 2
        }
    }
}
