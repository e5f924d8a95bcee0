// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import Selvane

/// Choices to tick; only the visible rows exist. It is one Tab stop: arrows, Home, End and the Page keys
/// move, typing goes to the title that begins so, Space ticks.
Item {
    id: checklist

    required property ChoiceListModel choices ///< may be null
    property string label ///< accessible name
    property int columns: 1
    property real rowHeight: Theme.controls.rowTarget
    property bool inList: false ///< rows in a well, with lines between them

    property alias view: view
    readonly property real contentHeight: Math.ceil(view.count / columns) * rowHeight

    function moveTo(index: int): void {
        view.currentIndex = Math.max(0, Math.min(index, view.count - 1))
    }

    function moveToText(letter: string): bool {
        const found = typeAhead.findRow(letter, view.currentIndex, checklist.choices, "title")
        if (found >= 0)
            checklist.moveTo(found)
        return found >= 0
    }

    TypeAhead {
        id: typeAhead
    }
    // Clips the rows, but not the focus ring of the first column.
    Item {
        anchors.fill: parent
        anchors.leftMargin: -Theme.ringGap
        clip: true

        GridView {
            id: view

            readonly property int page: Math.max(1, Math.floor(height / cellHeight)) * checklist.columns

            anchors.fill: parent
            anchors.leftMargin: Theme.ringGap
            model: checklist.choices
            cellWidth: Math.max(Theme.hairline, Math.floor(width / checklist.columns))
            cellHeight: checklist.rowHeight
            boundsBehavior: Flickable.StopAtBounds
            highlightMoveDuration: 0

            Accessible.role: Accessible.List
            Accessible.name: checklist.label

            onCountChanged: {
                if (!currentItem)
                    currentIndex = count > 0 ? 0 : -1
            }
            onActiveFocusChanged: {
                if (activeFocus)
                    positionViewAtIndex(currentIndex, GridView.Contain)
            }
            Keys.onPressed: event => {
                switch (event.key) {
                case Qt.Key_Home:
                    checklist.moveTo(0)
                    break
                case Qt.Key_End:
                    checklist.moveTo(view.count - 1)
                    break
                case Qt.Key_PageUp:
                    checklist.moveTo(view.currentIndex - view.page)
                    break
                case Qt.Key_PageDown:
                    checklist.moveTo(view.currentIndex + view.page)
                    break
                default:
                    event.accepted = checklist.moveToText(event.text)
                    return
                }
                event.accepted = true
            }

            delegate: CheckBoxRow {
                id: row

                required property int index
                required property string title
                required property bool isChosen
                required detail
                required aside
                required mark

                width: view.cellWidth - (checklist.inList ? 0 : Theme.space16)
                height: view.cellHeight
                text: title
                checked: isChosen
                inList: checklist.inList
                fadesUnchecked: !checklist.inList
                tabStop: GridView.isCurrentItem || activeFocus // the item with the focus must stay a Tab stop
                onToggled: checklist.choices.toggle(index)
                onActiveFocusChanged: {
                    if (activeFocus)
                        view.currentIndex = index
                }

                Rectangle {
                    anchors.bottom: parent.bottom
                    width: parent.width
                    height: Theme.hairline
                    visible: row.inList && row.index < view.count - 1
                    color: Theme.separator
                }
            }
        }
        ThinScrollBar {
            flickable: view
        }
    }
    Connections {
        target: checklist.choices

        function onModelReset(): void {
            view.currentIndex = 0
            view.positionViewAtBeginning()
        }
    }
}
