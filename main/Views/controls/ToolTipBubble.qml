// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import Selvane

/// The help for a control, shown beside it after a moment. Keys in brackets at the end become a key cap.
Rectangle {
    id: bubble

    required property Item target
    required property string text

    readonly property list<string> pieces: text.match(/^(.*) \(((?:⌘|Ctrl\+).*)\)$/) ?? [text, text, ""]

    function show(): void {
        const at = bubble.target.mapToItem(bubble.parent, 0, bubble.target.height + Theme.space8)
        const room = bubble.parent.width - bubble.width - Theme.space8
        const above = at.y - bubble.target.height - 2 * Theme.space8 - bubble.height
        bubble.x = Math.round(Math.max(Theme.space8, Math.min(room, at.x + (bubble.target.width - bubble.width) / 2)))
        bubble.y = Math.round(at.y + bubble.height > bubble.parent.height ? above : at.y)
        bubble.visible = true
    }

    parent: target.Window.contentItem
    z: Theme.toolTipLayer
    visible: false
    width: Math.ceil(content.implicitWidth) + 2 * Theme.space10
    height: content.implicitHeight + 2 * Theme.space6
    radius: Theme.radiusControl
    color: Theme.raised
    border.width: Theme.hairline
    border.color: Theme.separator

    Accessible.ignored: true

    Timer {
        interval: Theme.motion.toolTipDelay
        running: true
        onTriggered: bubble.show()
    }
    Row {
        id: content

        anchors.centerIn: parent
        spacing: Theme.space8

        StyledText {
            anchors.verticalCenter: parent.verticalCenter
            look: Theme.type.small
            text: bubble.pieces[1]
            width: Math.min(implicitWidth, Theme.controls.menuWidth)
            wrapMode: Text.Wrap
        }
        KeyCap {
            visible: keys !== ""
            keys: bubble.pieces[2]
        }
    }
}
