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
    /// Runs of text, and each drawn key separately.
    readonly property list<string> parts: keys.match(/[←→⌘↩]|[^←→⌘↩]+/g) ?? []

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

        Repeater {
            model: cap.parts

            delegate: Item {
                id: part

                required property string modelData

                readonly property string icon: cap.icons[modelData] ?? ""

                implicitWidth: icon !== "" ? drawn.width : caption.implicitWidth
                implicitHeight: Theme.type.keyCap.lineHeight

                PathIcon {
                    id: drawn

                    anchors.centerIn: parent
                    visible: part.icon !== ""
                    name: part.icon
                    size: Theme.controls.keyCapIcon
                    weight: PathIcon.Bold
                    color: Theme.textSoft
                }
                StyledText {
                    id: caption

                    anchors.centerIn: parent
                    // A drawn key has no text: looking for a font that has the character takes long.
                    look: Theme.type.keyCap
                    text: part.icon === "" ? part.modelData : ""
                    color: Theme.textSoft
                }
            }
        }
    }
}
