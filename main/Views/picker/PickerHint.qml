// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import Selvane

/// The keys that work in the picker.
Row {
    id: hint

    property bool isSearching: false

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
    Accessible.name: isSearching
                     ? qsTr("← → per scegliere · invio per avviare · Esc per rivedere tutti i profili")
                     : Theme.keyText(qsTr("← → per scegliere · invio per avviare · scrivi per cercare · ⌘, impostazioni"))

    KeyCap { keys: "←" }
    KeyCap { keys: "→" }
    Words { text: qsTr("per scegliere") }
    Dot {}
    KeyCap { keys: qsTr("invio") }
    Words { text: qsTr("per avviare") }
    Dot {}
    Row {
        anchors.verticalCenter: parent.verticalCenter
        visible: !hint.isSearching
        spacing: Theme.space4

        Words { text: qsTr("scrivi"); color: Theme.textSoft }
        Words { text: qsTr("per cercare") }
    }
    Dot { visible: !hint.isSearching }
    KeyCap { keys: hint.isSearching ? "Esc" : Theme.keyText("⌘,") }
    Words { text: hint.isSearching ? qsTr("per rivedere tutti i profili") : qsTr("impostazioni") }
}
