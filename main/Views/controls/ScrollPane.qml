// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import Selvane

/// A column that scrolls if it is too tall. It scrolls an item that gets the focus into view, but not one
/// that gets it back from another window or from a layer that covered the column.
FocusScope {
    id: pane

    default property alias content: column.data
    property alias spacing: column.spacing
    property real sideMargin: 0
    property real topMargin: 0
    property real bottomMargin: 0

    readonly property bool isScrolled: view.contentY > 0
    /// The visible part of the column, measured from its top.
    readonly property real visibleTop: view.contentY - topMargin
    readonly property real visibleHeight: view.height
    readonly property Item focusItem: Window.activeFocusItem
    property bool wasAway: true ///< whether the last item with the focus was such a layer's or none

    function showTop(): void {
        view.contentY = 0
    }
    /// Scrolls to where the item's top is at the top, as far as that goes.
    function scrollTo(item: Item): void {
        view.contentY = pane.topOf(item)
        view.returnToBounds()
    }
    function reveal(focused: Item): void {
        let item = focused
        let ancestor = focused
        let covered = 0 // at the top, by a header that sticks there
        while (ancestor && ancestor !== column) {
            if (ancestor instanceof Flickable)
                item = ancestor // a Flickable keeps its own rows in view
            const card = ancestor as StickyCard
            if (card && !pane.isInside(focused, card.header))
                covered = card.headerHeight
            else if (card)
                item = card // to where the header doesn't stick
            ancestor = ancestor.parent
        }
        const sticky = item as StickyCard
        if (!ancestor || sticky && pane.isInView(sticky.header))
            return
        const height = sticky ? sticky.headerHeight : item.height
        const top = pane.topOf(item) - Theme.space12 - covered
        const bottom = pane.topOf(item) + height + Theme.space12
        if (top < view.contentY || height > view.height)
            view.contentY = top > Math.max(pane.topMargin, Theme.space24) ? top : 0 // there may be a label above
        else if (bottom > view.contentY + view.height)
            view.contentY = Math.min(view.contentHeight, bottom) - view.height
    }
    function topOf(item: Item): real {
        return item.mapToItem(view.contentItem, 0, 0).y
    }
    function isInView(item: Item): bool {
        const top = pane.topOf(item)
        return top >= view.contentY && top + item.height <= view.contentY + view.height
    }

    function isInside(item: Item, ancestor: Item): bool {
        while (item && item !== ancestor)
            item = item.parent
        return item !== null
    }
    /// Whether an item (null for none) lies outside this window or in a layer that covers the pane.
    function isAway(item: Item): bool {
        for (let layer = item; layer; layer = layer.parent) {
            if (layer instanceof ModalLayer || layer instanceof Popover || layer instanceof BusyOverlay)
                return !pane.isInside(pane, layer)
        }
        return item === null
    }

    implicitHeight: column.implicitHeight + topMargin + bottomMargin

    onFocusItemChanged: {
        if (!pane.wasAway)
            reveal(focusItem)
        pane.wasAway = pane.isAway(focusItem)
    }

    Flickable {
        id: view

        anchors.fill: parent
        contentHeight: pane.implicitHeight
        boundsBehavior: Flickable.StopAtBounds
        clip: true

        Column {
            id: column

            x: pane.sideMargin
            y: pane.topMargin
            width: pane.width - 2 * pane.sideMargin
        }
    }
    ThinScrollBar {
        flickable: view
    }
}
