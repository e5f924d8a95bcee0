// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import Selvane

/// A menu of `MenuEntry` and `MenuDivider`. Triggering an entry first closes the menu. Make one for a whole
/// view, not one for each row.
Popover {
    id: menu

    default property alias entries: column.data
    property real narrowest: 0 ///< the least width

    /// Focuses the next available entry, starting at `start` and going by `step`; wraps around at either end.
    function focusFrom(start: int, step: int): void {
        const count = column.children.length
        for (let i = 0; i < count; ++i) {
            const entry = column.children[(start + i * step + 2 * count) % count] as MenuEntry
            if (entry && entry.enabled && entry.visible) {
                entry.forceActiveFocus(Qt.TabFocusReason)
                return
            }
        }
    }
    function move(step: int): void {
        let at = step > 0 ? -1 : column.children.length
        for (let i = 0; i < column.children.length; ++i) {
            if (column.children[i].activeFocus)
                at = i
        }
        focusFrom(at + step, step)
    }

    Accessible.role: Accessible.PopupMenu

    onIsOpenChanged: {
        if (isOpen)
            column.forceActiveFocus(Qt.PopupFocusReason) // no entry has it yet
    }
    Keys.onUpPressed: move(-1)
    Keys.onDownPressed: move(1)
    Keys.onPressed: event => {
        event.accepted = event.key === Qt.Key_Home || event.key === Qt.Key_End
        if (event.key === Qt.Key_Home)
            focusFrom(0, 1)
        else if (event.key === Qt.Key_End)
            focusFrom(column.children.length - 1, -1)
    }

    Column {
        id: column

        readonly property real widest: {
            let widest = menu.narrowest - 2 * menu.padding
            for (let i = 0; i < children.length; ++i)
                widest = Math.max(widest, children[i].implicitWidth)
            return widest
        }

        Component.onCompleted: {
            for (let i = 0; i < children.length; ++i) {
                children[i].width = Qt.binding(() => column.widest)
                const entry = children[i] as MenuEntry
                if (entry)
                    entry.picked.connect(menu.close)
            }
        }
    }
}
