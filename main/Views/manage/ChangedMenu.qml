// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import Selvane

/// The commands for an item that no longer follows the source, each with what it does.
RowMenu {
    id: menu

    property string item ///< its name; empty for a single file

    readonly property string sourceName: component?.sourceName ?? ""
    readonly property bool isFile: item === ""
    readonly property bool isFeminine: component?.isFeminine ?? false

    narrowest: Theme.manage.changedMenuWidth
    onClosed: menu.component.forgetDifference()

    signal compareAsked(ComponentModel component, int row)

    /// Opens for a row of the component, which lies at `at`: at the pointer, or below the row's button.
    function openFor(component: ComponentModel, row: ItemRow, at: Item, pointer: var): void {
        menu.begin(component, row.index, row.name)
        menu.openInRow(at, pointer)
    }
    /// The same for a component that is a single file.
    function openForFile(component: ComponentModel, opener: Item): void {
        menu.begin(component, -1, "")
        menu.openEndingAt(opener, opener.width, opener.height + Theme.space4, opener.height)
    }
    function begin(component: ComponentModel, row: int, item: string): void {
        menu.component = component
        menu.row = row
        menu.item = item
        component.readDifference(row)
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
        text: (menu.isFeminine ? qsTr("Riprendi quella di «%1»") : qsTr("Riprendi quello di «%1»")).arg(menu.sourceName)
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
        text: menu.isFeminine ? qsTr("Tieni come propria") : qsTr("Tieni come proprio")
        icon: "file-text"
        explanation: menu.isFeminine ? qsTr("Resta qui così com'è e non viene più segnalata")
                                     : qsTr("Resta qui così com'è e non viene più segnalato")
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
