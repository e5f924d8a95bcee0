// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import Selvane

/// The commands for a profile in the sidebar.
ContextMenu {
    id: menu

    required property AppModel app
    property string profileId

    signal launched(string profileId)
    signal revealed(string profileId)
    signal newProfileAsked(string source)

    MenuEntry {
        text: qsTr("Avvia Claude")
        icon: "arrow-right"
        onTriggered: menu.launched(menu.profileId)
    }
    MenuEntry {
        text: Theme.revealText
        symbol: "folder"
        onTriggered: menu.revealed(menu.profileId)
    }
    MenuEntry {
        text: qsTr("Nuovo profilo da qui…")
        symbol: "plus.square.on.square"
        onTriggered: menu.newProfileAsked(menu.profileId)
    }
    EntryCommand {
        app: menu.app
        profileId: menu.profileId
    }
}
