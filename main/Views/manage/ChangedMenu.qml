// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import Selvane

/// The commands for an item that no longer follows the source, each with what it does.
ContextMenu {
    id: menu

    property ComponentModel component: null
    property int row: -1 ///< -1 for a single file
    property string item ///< its name; empty for a single file

    readonly property string sourceName: component?.sourceName ?? ""
    readonly property bool isFile: item === ""

    signal compareAsked(ComponentModel component, int row)

    /// Opens for a row of the component, at a point in `at`.
    function openFor(component: ComponentModel, row: ItemRow, at: Item, x: real, y: real, height: real): void {
        menu.open(component, row.index, row.name, at, x, y, height)
    }
    /// The same for a component that is a single file.
    function openForFile(component: ComponentModel, at: Item): void {
        menu.open(component, -1, "", at, 0, at.height + Theme.space4, at.height)
    }
    function open(component: ComponentModel, row: int, item: string, at: Item, x: real, y: real, height: real): void {
        menu.component = component
        menu.row = row
        menu.item = item
        component.readDifference(row)
        menu.openAt(at, x, y, height)
    }

    Connections {
        target: menu.isFile ? null : menu.component?.items ?? null

        // The menu stays with its item.
        function onModelReset(): void {
            menu.row = menu.component.items.rowOf(menu.item)
            if (menu.row < 0)
                menu.close()
        }
    }
    MenuEntry {
        text: qsTr("Confronta con «%1»").arg(menu.sourceName)
        icon: "git-diff"
        explanation: menu.component?.difference || qsTr("Conto le righe diverse…")
        onTriggered: menu.compareAsked(menu.component, menu.row)
    }
    MenuEntry {
        text: (menu.isFile ? qsTr("Riprendi quello di «%1»") : qsTr("Riprendi quella di «%1»")).arg(menu.sourceName)
        icon: "arrow-u-down-left"
        explanation: qsTr("La versione di qui va nel Cestino")
        onTriggered: menu.component.relink(menu.row)
    }
    MenuEntry {
        text: qsTr("Porta in «%1»").arg(menu.sourceName)
        icon: "upload-simple"
        explanation: menu.component?.bringConsequence ?? ""
        onTriggered: menu.component.bring(menu.row)
    }
    MenuEntry {
        text: menu.isFile ? qsTr("Tieni come proprio") : qsTr("Tieni come propria")
        icon: "file-text"
        explanation: menu.isFile ? qsTr("Resta qui così com'è e non viene più segnalato")
                                 : qsTr("Resta qui così com'è e non viene più segnalata")
        onTriggered: menu.component.keepOwn(menu.row)
    }
    MenuDivider {}
    MenuEntry {
        text: Theme.revealText
        symbol: "folder"
        onTriggered: {
            if (menu.isFile)
                menu.component.reveal()
            else
                menu.component.revealItem(menu.row)
        }
    }
}
