// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import Selvane

/// The keys that work in the picker.
Row {
    id: hint

    component Words: StyledText {
        anchors.verticalCenter: parent.verticalCenter
        look: Theme.type.small
        color: Theme.textFaint
    }
    component Dot: Words {
        text: "·"
        color: Theme.controlBorder
        leftPadding: Theme.space4
        rightPadding: Theme.space4
    }

    spacing: Theme.space8

    Accessible.role: Accessible.StaticText
    Accessible.name: Theme.keyText(qsTr("← → per scegliere · invio per avviare · ⌘, impostazioni"))

    KeyCap { keys: "←" }
    KeyCap { keys: "→" }
    Words { text: qsTr("per scegliere") }
    Dot {}
    KeyCap { keys: qsTr("invio") }
    Words { text: qsTr("per avviare") }
    Dot {}
    KeyCap { keys: Theme.keyText("⌘,") }
    Words { text: qsTr("impostazioni") }
}
