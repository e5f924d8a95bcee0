// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import Selvane

/// The items of a component. It is as tall as all its rows, but only the visible ones exist. It is one Tab
/// stop; arrows move from row to row, typing to the item whose name begins so.
Item {
    id: list

    required property ComponentModel component
    required property ItemMenu menu
    required property ChangedMenu changedMenu
    /// The visible part of the scrolled column, measured from the list's top.
    required property real visibleTop
    required property real visibleHeight
    property int currentRow: 0
    property string currentName ///< that of the current item while the rows are read anew

    readonly property int count: component.items.count
    readonly property ItemRow currentItem: rows.currentItem as ItemRow

    /// The cursor has moved to this row, which must be scrolled into view.
    signal rowReached(Item row)
    signal foldAsked
    signal aboveAsked ///< from the first row

    function take(): void {
        if (list.count > 0)
            cursor.forceActiveFocus(Qt.TabFocusReason)
    }

    function moveTo(row: int): void {
        list.currentRow = Math.max(0, Math.min(row, list.count - 1))
        list.rowReached(cursor)
    }
    function moveToText(letter: string): bool {
        const found = typeAhead.findRow(letter, list.currentRow, list.component.items, "name")
        if (found >= 0)
            list.moveTo(found)
        return found >= 0
    }
    /// Opens the menu at the pointer, or below the row's button if there is none.
    function openMenu(pointer: var): void {
        if (list.currentItem?.isChanged)
            list.changedMenu.openFor(list.component, list.currentItem, cursor, pointer)
        else if (list.currentItem)
            list.menu.openFor(list.component, list.currentItem, cursor, pointer)
    }
    function openMenuByKey(): void {
        list.openMenu(null)
        if (list.changedMenu.isOpen)
            list.changedMenu.move(1)
        else
            list.menu.move(1)
    }
    function within(y: real): real {
        return Math.max(0, Math.min(y, list.implicitHeight))
    }

    implicitHeight: count * Theme.manage.itemHeight

    Accessible.role: Accessible.List
    Accessible.name: component.title

    onCountChanged: {
        list.currentRow = Math.max(0, Math.min(list.currentRow, list.count - 1))
        if (list.count === 0 && cursor.activeFocus)
            cursor.nextItemInFocusChain(true).forceActiveFocus(Qt.TabFocusReason)
    }

    Connections {
        target: list.component.items

        // The cursor stays with its item.
        function onModelAboutToBeReset(): void {
            list.currentName = list.currentItem?.name ?? ""
        }
        function onModelReset(): void {
            const row = list.component.items.rowOf(list.currentName)
            if (row >= 0)
                list.currentRow = row
        }
    }
    TypeAhead {
        id: typeAhead
    }
    ListView {
        id: rows

        // It never scrolls by itself: it moves along with the visible part.
        y: list.within(list.visibleTop - Theme.manage.itemSpare)
        width: list.width
        height: list.within(list.visibleTop + list.visibleHeight + Theme.manage.itemSpare) - y
        contentY: y
        interactive: false
        cacheBuffer: 0
        reuseItems: true
        highlightFollowsCurrentItem: false
        model: list.component.items
        currentIndex: list.currentRow

        delegate: ItemRow {
            id: row

            width: ListView.view.width
            sourceName: list.component.sourceName
            isFeminine: list.component.isFeminine
            hasMenu: list.menu.isOpenFor(list.component, row.index)
                     || list.changedMenu.isOpenFor(list.component, row.index)
            onPressed: {
                list.currentRow = row.index
                cursor.forceActiveFocus(Qt.MouseFocusReason)
            }
            onMenuAsked: pointer => {
                list.currentRow = row.index
                list.openMenu(pointer)
            }
        }
    }
    Item {
        id: cursor

        y: list.currentRow * Theme.manage.itemHeight
        width: list.width
        height: Theme.manage.itemHeight
        activeFocusOnTab: list.count > 0

        Accessible.ignored: list.count === 0
        Accessible.role: Accessible.ListItem
        Accessible.name: list.currentItem?.name ?? ""
        Accessible.description: list.currentItem?.origin ?? ""
        Accessible.focusable: true

        Keys.onUpPressed: {
            if (list.currentRow === 0)
                list.aboveAsked()
            else
                list.moveTo(list.currentRow - 1)
        }
        Keys.onLeftPressed: list.foldAsked()
        Keys.onDownPressed: list.moveTo(list.currentRow + 1)
        Keys.onMenuPressed: list.openMenuByKey()
        Keys.onSpacePressed: list.openMenuByKey()
        Keys.onReturnPressed: event => {
            event.accepted = event.modifiers === Qt.NoModifier
            if (event.accepted)
                list.openMenuByKey()
        }
        Keys.onPressed: event => {
            const page = Math.max(1, Math.floor((list.visibleHeight - list.y) / Theme.manage.itemHeight) - 1)
            event.accepted = true
            if (event.key === Qt.Key_Home)
                list.moveTo(0)
            else if (event.key === Qt.Key_End)
                list.moveTo(list.count - 1)
            else if (event.key === Qt.Key_PageUp)
                list.moveTo(list.currentRow - page)
            else if (event.key === Qt.Key_PageDown)
                list.moveTo(list.currentRow + page)
            else if (event.key === Qt.Key_F10 && event.modifiers === Qt.ShiftModifier)
                list.openMenuByKey()
            else
                event.accepted = list.moveToText(event.text)
        }

        Rectangle {
            anchors.fill: parent
            visible: cursor.activeFocus && Theme.showsFocus
            radius: Theme.radiusCard
            color: Theme.transparent
            border.width: Theme.thickLine
            border.color: Theme.focusRing
        }
    }
}
