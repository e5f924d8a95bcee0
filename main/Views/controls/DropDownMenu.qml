// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import Selvane

/// The open list of a `DropDown`. Arrows, Home and End move; typing goes to the label that begins so.
Popover {
    id: menu

    required property list<string> labels
    required property list<string> explanations
    required property int chosenIndex
    required property real narrowest
    property real room: 0 ///< for the list, which scrolls if it is taller

    signal chosen(int index)

    function begin(index: int, room: real): void {
        menu.room = room
        typeAhead.reset()
        menu.fit()
        list.currentIndex = Math.max(0, index)
        list.positionViewAtIndex(list.currentIndex, ListView.Contain)
    }
    function fit(): void {
        list.height = Math.min(list.contentHeight, menu.room)
    }
    function choose(index: int): void {
        menu.close()
        menu.chosen(index)
    }
    function findLabel(letter: string): bool {
        const found = typeAhead.find(letter, list.currentIndex, menu.labels)
        if (found >= 0)
            list.currentIndex = found
        return found >= 0
    }

    Accessible.role: Accessible.PopupMenu

    ListView {
        id: list

        width: menu.explanations.length > 0 ? Theme.controls.menuWidth - 2 * menu.padding
                                            : Math.max(menu.narrowest, Theme.controls.modeWidth) - 2 * menu.padding
        // Not a binding: the content height depends on how many rows exist.
        onContentHeightChanged: menu.fit()
        model: menu.labels
        focus: true
        clip: true
        boundsBehavior: Flickable.StopAtBounds
        highlightMoveDuration: 0
        keyNavigationEnabled: true

        delegate: MenuEntry {
            required property int index
            required property string modelData

            width: ListView.view.width
            text: modelData
            explanation: menu.explanations[index] ?? ""
            choosable: true
            chosen: index === menu.chosenIndex
            onTriggered: menu.choose(index)
            onHoveredChanged: {
                if (hovered)
                    list.currentIndex = index
            }
        }

        Keys.onPressed: event => {
            if (event.key === Qt.Key_Home)
                list.currentIndex = 0
            else if (event.key === Qt.Key_End)
                list.currentIndex = list.count - 1
            else if (!menu.findLabel(event.text))
                return
            event.accepted = true
        }
    }
    TypeAhead {
        id: typeAhead
    }
    ThinScrollBar {
        flickable: list
        inset: Theme.space2
    }
}
