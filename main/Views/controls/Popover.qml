// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import Selvane

/// A panel over the whole window, beside the item that opened it. A press outside, Escape or a change of
/// focus closes it; the focus then returns to where it was.
FocusScope {
    id: popover

    default property alias content: inside.data
    property real padding: Theme.controls.menuPadding
    property color fill: Theme.raised
    property bool isOpen: false
    property Item previousFocus: null

    signal closed

    /// Opens below the point in `item`, or, without room below, above an opener of this `height`.
    function openAt(item: Item, x: real, y: real, height: real): void {
        plate.endsThere = false
        popover.open(item, x, y, height)
    }
    /// The same with the right edge at the point.
    function openEndingAt(item: Item, x: real, y: real, height: real): void {
        plate.endsThere = true
        popover.open(item, x, y, height)
    }
    function open(item: Item, x: real, y: real, height: real): void {
        popover.parent = item.Window.contentItem
        popover.previousFocus = item.Window.activeFocusItem
        const at = item.mapToItem(popover.parent, x, y)
        plate.at = Qt.point(at.x, at.y)
        plate.openerHeight = height
        popover.isOpen = true
        popover.forceActiveFocus(Qt.PopupFocusReason)
    }
    function close(): void {
        if (!popover.isOpen)
            return
        const hadFocus = popover.activeFocus
        popover.isOpen = false
        if (hadFocus && popover.previousFocus)
            popover.previousFocus.forceActiveFocus(Qt.PopupFocusReason)
        popover.closed()
    }

    anchors.fill: parent
    z: Theme.popoverLayer
    visible: isOpen || plate.opacity > 0
    enabled: isOpen

    onActiveFocusChanged: {
        if (!activeFocus)
            close()
    }
    Keys.onEscapePressed: close()
    Keys.onTabPressed: close()
    Keys.onBacktabPressed: close()

    MouseArea {
        anchors.fill: parent
        acceptedButtons: Qt.AllButtons
        hoverEnabled: true
        onPressed: popover.close()
        onWheel: wheel => wheel.accepted = true
    }
    Rectangle {
        id: plate

        property point at
        property real openerHeight
        property bool endsThere

        readonly property bool fitsBelow: at.y + height + Theme.space8 <= popover.height
        property real slide: popover.isOpen ? 0 : -Theme.motion.menuSlide

        x: Math.round(Math.max(Theme.space8, Math.min(endsThere ? at.x - width : at.x, popover.width - width - Theme.space8)))
        y: Math.round(Math.max(Theme.space8, fitsBelow ? at.y : at.y - openerHeight - height - 2 * Theme.space4))
           + slide
        width: inside.childrenRect.width + 2 * popover.padding
        height: inside.childrenRect.height + 2 * popover.padding
        radius: Theme.radiusCard
        color: popover.fill
        border.width: Theme.hairline
        border.color: Theme.separator
        opacity: popover.isOpen ? 1 : 0

        Behavior on opacity {
            NumberAnimation {
                duration: popover.isOpen ? Theme.motion.menuIn : Theme.motion.menuOut
                easing.type: Easing.OutQuad
            }
        }
        Behavior on slide {
            NumberAnimation {
                duration: popover.isOpen ? Theme.motion.menuIn : Theme.motion.menuOut
                easing.type: Easing.OutQuad
            }
        }

        // Presses between the entries must not reach the area that closes the panel.
        MouseArea {
            anchors.fill: parent
            acceptedButtons: Qt.AllButtons
        }
        FocusScope {
            id: inside

            x: popover.padding
            y: popover.padding
            focus: true
        }
    }
}
