// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import Selvane

/// More commands for a profile in the picker.
ContextMenu {
    id: menu

    required property AppModel app
    property string profileId

    signal launched(string profileId)
    signal settingsAsked(string profileId)
    signal newProfileAsked(string source)

    MenuEntry {
        text: qsTr("Avvia Claude")
        icon: "arrow-right"
        onTriggered: menu.launched(menu.profileId)
    }
    MenuEntry {
        text: qsTr("Impostazioni del profilo…")
        symbol: "gearshape"
        onTriggered: menu.settingsAsked(menu.profileId)
    }
    MenuEntry {
        text: qsTr("Nuovo profilo da questo…")
        symbol: "plus.square.on.square"
        onTriggered: menu.newProfileAsked(menu.profileId)
    }
    EntryCommand {
        app: menu.app
        profileId: menu.profileId
    }
}
