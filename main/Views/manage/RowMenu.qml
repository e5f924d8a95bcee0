// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import Selvane

/// The menu of an item's row.
ContextMenu {
    id: menu

    property ComponentModel component: null
    property int row: -1 ///< -1 for a single file

    padding: Theme.controls.menuPadding + Theme.hairline

    /// Opens at the pointer in `row`; without one, below the row, with the button at its end.
    function openInRow(row: Item, pointer: var): void {
        if (pointer !== null)
            menu.openAt(row, pointer.x, pointer.y, 0)
        else
            menu.openEndingAt(row, row.width - Theme.manage.itemMenuRight + Theme.hairline,
                              row.height + Theme.space4, row.height)
    }
    function isOpenFor(component: ComponentModel, row: int): bool {
        return menu.isOpen && menu.component === component && menu.row === row
    }
}
