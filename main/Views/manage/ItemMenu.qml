// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import Selvane

/// The commands for an item of a component.
RowMenu {
    id: menu

    property string item ///< its name
    property bool isLink: false

    /// Opens for a row of the component, which lies at `at`: at the pointer, or below the row's button.
    function openFor(component: ComponentModel, row: ItemRow, at: Item, pointer: var): void {
        menu.component = component
        menu.row = row.index
        menu.item = row.name
        menu.isLink = row.isLink
        menu.openInRow(at, pointer)
    }

    Connections {
        target: menu.component?.items ?? null

        // The menu stays with its item.
        function onModelReset(): void {
            menu.row = menu.component.items.rowOf(menu.item)
            menu.isLink = menu.component.items.isLink(menu.row)
            if (menu.row < 0)
                menu.close()
        }
    }
    MenuEntry {
        text: menu.isLink ? qsTr("Scollega da questo profilo") : qsTr("Sposta nel Cestino")
        icon: menu.isLink ? "link-break" : ""
        symbol: "trash"
        onTriggered: menu.component.remove(menu.row)
    }
    MenuEntry {
        visible: menu.isLink
        text: qsTr("Rendi propria (copia indipendente)")
        icon: "copy"
        onTriggered: menu.component.makeOwn(menu.row)
    }
    MenuDivider {}
    MenuEntry {
        text: Theme.revealText
        symbol: "folder"
        onTriggered: menu.component.revealItem(menu.row)
    }
}
