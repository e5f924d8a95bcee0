// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import Selvane

/// The picker's keys.
Row {
    id: hint

    readonly property string text: Theme.keyText(qsTr("← → per scegliere · invio per avviare · ⌘, impostazioni"))
    readonly property list<string> groups: text.split(" · ")

    spacing: Theme.space12

    Accessible.role: Accessible.StaticText
    Accessible.name: text

    Repeater {
        model: hint.groups

        delegate: Row {
            id: group

            required property string modelData
            required property int index
            /// The keys, then the lower-case words that say what they do.
            readonly property var pieces: modelData.match(/^(.*?) (per .*|\S+)$/)

            spacing: Theme.space8

            StyledText {
                visible: group.index > 0
                anchors.verticalCenter: parent.verticalCenter
                look: Theme.type.small
                text: "·"
                color: Theme.controlBorder
                rightPadding: Theme.space4
            }
            Repeater {
                model: group.pieces[1].split(" ")

                delegate: KeyCap {
                    required property string modelData

                    keys: modelData
                }
            }
            StyledText {
                anchors.verticalCenter: parent.verticalCenter
                look: Theme.type.small
                text: group.pieces[2]
                color: Theme.textFaint
            }
        }
    }
}
