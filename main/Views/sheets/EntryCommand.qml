// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import Selvane

/// Puts a profile among the desktop's applications, or takes it away from them.
MenuEntry {
    id: command

    required property AppModel app
    required property string profileId
    readonly property bool isThere: Array.from(command.app.entries.ids).includes(command.profileId)

    text: command.isThere ? qsTr("Togli dalle applicazioni") : qsTr("Aggiungi alle applicazioni")
    symbol: "square.grid.2x2"
    onTriggered: {
        if (command.isThere)
            command.app.entries.remove(command.profileId)
        else
            command.app.entries.add(command.profileId)
    }
}
