// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import Selvane

/// Shows the position of a view in its content, and can be dragged. It is a sibling of the view, at its right
/// edge.
Item {
    id: bar

    required property Flickable flickable
    property real inset: Theme.controls.scrollBarInset

    anchors.top: flickable.top
    anchors.bottom: flickable.bottom
    anchors.right: flickable.right
    width: Theme.controls.scrollBarWidth + 2 * inset
    visible: flickable.visibleArea.heightRatio < 1

    Accessible.ignored: true

    Rectangle {
        id: handle

        readonly property real length: bar.height - 2 * bar.inset
        readonly property real room: length - height ///< the distance it can move

        x: bar.inset
        y: bar.inset + bar.flickable.visibleArea.yPosition / (1 - bar.flickable.visibleArea.heightRatio) * room
        width: Theme.controls.scrollBarWidth
        height: Math.max(Theme.space24, bar.flickable.visibleArea.heightRatio * length)
        radius: width / 2
        color: Theme.controlBorder
    }
    MouseArea {
        property real start
        property real startY

        anchors.fill: parent
        preventStealing: true
        onPressed: mouse => {
            start = mouse.y
            startY = bar.flickable.contentY
        }
        onPositionChanged: mouse => {
            const view = bar.flickable
            const wanted = startY + (mouse.y - start) / handle.room * (view.contentHeight - view.height)
            view.contentY = Math.max(0, Math.min(view.contentHeight - view.height, wanted))
        }
    }
}
