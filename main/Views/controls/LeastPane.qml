// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import Selvane

/// Keeps its content from getting smaller than a least size: if there is less room, as in a tiled window, it
/// scrolls, and follows the focus.
Flickable {
    id: pane

    default property alias content: holder.data
    required property size least

    readonly property Item focusItem: Window.activeFocusItem

    function reveal(item: Item): void {
        let ancestor = item
        while (ancestor && ancestor !== holder)
            ancestor = ancestor.parent
        if (!ancestor || !pane.interactive)
            return
        const at = item.mapToItem(holder, 0, 0)
        pane.contentX = pane.place(pane.contentX, at.x, item.width, pane.width, pane.contentWidth)
        pane.contentY = pane.place(pane.contentY, at.y, item.height, pane.height, pane.contentHeight)
    }
    /// Where one side must start so that a part of it is in view, its beginning first.
    function place(start: real, from: real, length: real, room: real, whole: real): real {
        const last = Math.max(from + length + Theme.space12 - room, start)
        return Math.max(0, Math.min(last, from - Theme.space12, whole - room))
    }

    contentWidth: Math.max(width, least.width)
    contentHeight: Math.max(height, least.height)
    interactive: contentWidth > width || contentHeight > height
    boundsBehavior: Flickable.StopAtBounds
    onFocusItemChanged: reveal(focusItem)

    Item {
        id: holder

        width: pane.contentWidth
        height: pane.contentHeight
    }
}
