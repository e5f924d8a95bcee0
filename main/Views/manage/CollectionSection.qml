// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import Selvane

/// A component that is a folder: its items, and how to get more.
Card {
    id: section

    required property ComponentModel component
    required property ItemMenu menu
    required property ChangedMenu changedMenu
    /// The visible part of the scrolled column, measured from the section's top.
    required property real visibleTop
    required property real visibleHeight

    signal rowReached(Item row)
    signal importAsked
    signal relinkAsked

    implicitHeight: Theme.manage.sectionHeader + items.height + Theme.manage.sectionFooter + Theme.hairline

    Accessible.role: Accessible.Grouping
    Accessible.name: component.title

    SectionHeader {
        width: parent.width
        height: Theme.manage.sectionHeader
        component: section.component
        note: section.component.count
        onRelinkAsked: section.relinkAsked()
    }
    ItemList {
        id: items

        x: Theme.hairline
        y: Theme.manage.sectionHeader
        width: parent.width - 2 * Theme.hairline
        height: implicitHeight
        component: section.component
        menu: section.menu
        changedMenu: section.changedMenu
        visibleTop: section.visibleTop - y
        visibleHeight: section.visibleHeight
        onRowReached: row => section.rowReached(row)
    }
    Rectangle {
        anchors { top: items.bottom; left: items.left; right: items.right }
        height: Theme.hairline
        color: Theme.separator
    }
    GhostButton {
        id: addButton

        // Aligned with the icons and texts of the items.
        x: Theme.manage.itemIconLeft - padding - Theme.hairline
        anchors { bottom: parent.bottom; bottomMargin: Math.floor((Theme.manage.sectionFooter - height) / 2) }
        bare: true
        size: GhostButton.Small
        gap: Theme.manage.itemTextLeft - Theme.manage.itemIconLeft - Theme.iconControl
        symbol: "plus"
        text: qsTr("Aggiungi da un altro profilo…")
        onClicked: section.importAsked()
    }
    GhostButton {
        anchors { right: parent.right; rightMargin: Theme.space12; verticalCenter: addButton.verticalCenter }
        bare: true
        soft: true
        size: GhostButton.Small
        text: qsTr("Mostra cartella")
        onClicked: section.component.reveal()
    }
}
