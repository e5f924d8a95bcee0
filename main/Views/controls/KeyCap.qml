// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import Selvane

/// Keys, drawn as key caps. The typeface has no arrows and no ⌘, so these are icons.
Rectangle {
    id: cap

    required property string keys

    readonly property var icons: ({
        "←": "arrow-left",
        "→": "arrow-right",
        "⌘": "command",
        "↩": "arrow-elbow-down-left"
    })
    /// A drawn key before or after the text. It isn't part of it: looking for a font that has the character takes
    /// long.
    readonly property string first: icons[keys.charAt(0)] ?? ""
    readonly property string last: keys.length > 1 ? icons[keys.charAt(keys.length - 1)] ?? "" : ""

    component DrawnKey: PathIcon {
        anchors.verticalCenter: parent.verticalCenter
        visible: name !== ""
        size: Theme.controls.keyCapIcon
        weight: PathIcon.Bold
        color: Theme.textSoft
    }

    implicitWidth: Math.max(Math.ceil(content.implicitWidth) + 2 * Theme.space6, Theme.controls.keyCapWidth)
    implicitHeight: Theme.controls.keyCapHeight
    radius: Theme.radiusKeyCap
    color: Theme.surface
    border.width: Theme.hairline
    border.color: Theme.separator

    Accessible.ignored: true

    Row {
        id: content

        anchors.centerIn: parent
        spacing: Theme.space4

        DrawnKey { name: cap.first }
        StyledText {
            visible: text !== ""
            look: Theme.type.keyCap
            text: cap.keys.slice(cap.first !== "" ? 1 : 0, cap.keys.length - (cap.last !== "" ? 1 : 0))
            color: Theme.textSoft
        }
        DrawnKey { name: cap.last }
    }
}
