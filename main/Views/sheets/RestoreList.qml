// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import Selvane

/// The parts of an archive in groups, to tick. It is one Tab stop: arrows, Home, End and the Page keys move, typing
/// goes to the name that begins so, Space ticks.
ListWell {
    id: well

    required property ChoiceListModel choices
    required property string label ///< accessible name
    required property real room    ///< it shrinks in a low window, as long as a few rows stay visible

    height: Math.min(list.contentHeight, Theme.sheets.restoreList,
                     Math.max(room, Theme.sheets.checklistLeast * Theme.controls.listRow))

    TypeAhead {
        id: typeAhead
    }
    ListView {
        id: list

        readonly property int page: Math.max(1, Math.floor(height / Theme.controls.listRow) - 1)

        function moveTo(index: int): void {
            currentIndex = Math.max(0, Math.min(index, count - 1))
            positionViewAtIndex(currentIndex, ListView.Contain)
        }

        anchors.fill: parent
        model: well.choices
        boundsBehavior: Flickable.StopAtBounds
        highlightMoveDuration: 0

        Accessible.role: Accessible.List
        Accessible.name: well.label

        Keys.onPressed: event => {
            const steps = {
                [Qt.Key_Home]: -count, [Qt.Key_End]: count, [Qt.Key_PageUp]: -page, [Qt.Key_PageDown]: page
            }
            event.accepted = true
            if (steps[event.key] !== undefined) {
                list.moveTo(currentIndex + steps[event.key])
                return
            }
            const found = typeAhead.findRow(event.text, currentIndex, well.choices, "title")
            event.accepted = found >= 0
            if (found >= 0)
                list.moveTo(found)
        }

        delegate: FocusScope {
            id: entry

            required property int index
            required property string title
            required property string detail
            required property string aside
            required property string mark
            required property string group
            required property profileLook look
            required property bool isProfile
            required property bool isChosen
            required property bool isFirst

            width: ListView.view.width
            height: row.y + row.height

            Rectangle {
                id: heading

                visible: entry.isFirst
                width: parent.width
                height: Theme.sheets.restoreGroup
                color: Theme.surface

                Eyebrow {
                    anchors { left: parent.left; leftMargin: Theme.space16; verticalCenter: parent.verticalCenter }
                    text: entry.isFirst ? entry.group : ""
                    Accessible.role: Accessible.Heading
                }
                StyledText {
                    anchors { right: parent.right; rightMargin: Theme.space16; verticalCenter: parent.verticalCenter }
                    look: Theme.type.small
                    // It is counted again when the count of all chosen ones is told.
                    text: entry.isFirst && well.choices.chosenCount >= 0 ? well.choices.tallyOf(entry.group) : ""
                    color: Theme.textFaint
                    Accessible.role: Accessible.StaticText
                    Accessible.name: text
                }
                Rectangle {
                    anchors.bottom: parent.bottom
                    width: parent.width
                    height: Theme.hairline
                    color: Theme.separator
                }
            }
            RestoreRow {
                id: row

                y: heading.visible ? heading.height : 0
                width: parent.width
                focus: true
                title: entry.title
                detail: entry.detail
                aside: entry.aside
                mark: entry.mark
                group: entry.group
                look: entry.look
                isProfile: entry.isProfile
                checked: entry.isChosen
                tabStop: entry.ListView.isCurrentItem || activeFocus
                onClicked: well.choices.toggle(entry.index)
                onActiveFocusChanged: {
                    if (activeFocus)
                        list.currentIndex = entry.index
                }
            }
        }
    }
    ThinScrollBar {
        flickable: list
    }
}
