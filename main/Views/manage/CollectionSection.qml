// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import Selvane

/// A component that is a folder: its items, and how to get more. Its header and its filter stay in sight.
StickyCard {
    id: section

    required property ComponentModel component
    required property ItemMenu menu
    required property ChangedMenu changedMenu
    required property real visibleHeight

    readonly property bool isOpen: component.isOpen
    readonly property ItemListModel rows: component.items
    readonly property bool hasFilter: isOpen && (rows.total >= Theme.manage.filteredItems || rows.filter !== "")

    signal rowReached(Item row)
    signal importAsked
    signal relinkAsked
    signal foldedFromBelow ///< closed while its own top was out of sight

    function setOpen(open: bool): void {
        const wasStuck = section.isStuck
        if (!open && section.holdsFocus())
            header.take()
        section.component.isOpen = open
        if (wasStuck && !open)
            section.foldedFromBelow()
    }

    function holdsFocus(): bool {
        let item = section.Window.activeFocusItem
        while (item && item !== section)
            item = item.parent
        return item !== null
    }

    headerHeight: Theme.manage.sectionHeader + (hasFilter ? filter.height : 0)
    implicitHeight: (isOpen ? headerHeight + items.height + Theme.manage.sectionFooter : headerHeight) + Theme.hairline

    Accessible.role: Accessible.Grouping
    Accessible.name: component.title

    headerContent: [
        SectionHeader {
            id: header

            width: section.width
            component: section.component
            note: section.component.count
            onRelinkAsked: section.relinkAsked()
            onOpenAsked: open => section.setOpen(open)
        },
        FilterRow {
            id: filter

            x: Theme.hairline
            y: Theme.manage.sectionHeader
            width: section.width - 2 * Theme.hairline
            visible: section.hasFilter
            items: section.rows
            prompt: section.component.filterPrompt
            onDownPressed: items.take()
        },
        Rectangle {
            x: Theme.hairline
            y: section.headerHeight
            width: section.width - 2 * Theme.hairline
            height: Theme.hairline
            visible: section.isOpen
            color: Theme.separator
        }
    ]

    ItemList {
        id: items

        x: Theme.hairline
        y: section.headerHeight
        width: parent.width - 2 * Theme.hairline
        height: implicitHeight
        visible: section.isOpen
        component: section.component
        menu: section.menu
        changedMenu: section.changedMenu
        visibleTop: section.visibleTop - y
        visibleHeight: section.visibleHeight
        onRowReached: row => section.rowReached(row)
        onFoldAsked: section.setOpen(false)
        onAboveAsked: {
            if (section.hasFilter)
                filter.take()
        }
    }
    Item {
        y: items.y + items.height
        width: parent.width
        height: Theme.manage.sectionFooter
        visible: section.isOpen

        Rectangle {
            x: Theme.hairline
            width: parent.width - 2 * Theme.hairline
            height: Theme.hairline
            color: Theme.separator
        }
        GhostButton {
            id: addButton

            // Aligned with the icons and texts of the items.
            x: Theme.manage.itemIconLeft - padding - Theme.hairline
            anchors.verticalCenter: parent.verticalCenter
            bare: true
            size: GhostButton.Small
            gap: Theme.manage.itemTextLeft - Theme.manage.itemIconLeft - Theme.iconControl
            symbol: "plus"
            text: qsTr("Aggiungi da un altro profilo…")
            onClicked: section.importAsked()
        }
        GhostButton {
            anchors { right: parent.right; rightMargin: Theme.space12; verticalCenter: parent.verticalCenter }
            bare: true
            soft: true
            size: GhostButton.Small
            text: qsTr("Mostra cartella")
            onClicked: section.component.reveal()
        }
    }
}
