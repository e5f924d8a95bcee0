// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import Selvane

/// One row of buttons: at rest, under the pointer, pressed, focused, disabled.
Grid {
    columns: 5
    columnSpacing: 12
    rowSpacing: 14

    Repeater {
        model: ["normale", "sopra", "premuto", "fuoco", "spento"]

        delegate: StyledText {
            required property string modelData

            width: 164
            look: Theme.type.listPath
            text: modelData
            color: Theme.textSoft
        }
    }
    Repeater {
        model: 5

        delegate: LaunchButton {
            required property int index

            text: "Avvia Claude  →"
            hovered: index === 1
            pressed: index === 2
            ringed: index === 3
            enabled: index !== 4
        }
    }
    Repeater {
        model: 5

        delegate: LaunchButton {
            required property int index

            text: "Crea profilo"
            size: LaunchButton.Medium
            hovered: index === 1
            pressed: index === 2
            ringed: index === 3
            enabled: index !== 4
        }
    }
    Repeater {
        model: 5

        delegate: LaunchButton {
            required property int index

            text: "Sposta nel Cestino"
            size: LaunchButton.Medium
            destructive: true
            hovered: index === 1
            pressed: index === 2
            ringed: index === 3
            enabled: index !== 4
        }
    }
    Repeater {
        model: 5

        delegate: GhostButton {
            required property int index

            text: "Sincronizza"
            symbol: "arrow.triangle.2.circlepath"
            hovered: index === 1
            pressed: index === 2
            ringed: index === 3
            enabled: index !== 4
        }
    }
    Repeater {
        model: 5

        delegate: GhostButton {
            required property int index

            text: Theme.revealText
            symbol: "folder"
            size: GhostButton.Small
            bare: true
            hovered: index === 1
            pressed: index === 2
            ringed: index === 3
            enabled: index !== 4
        }
    }
    Repeater {
        model: 5

        delegate: GhostButton {
            required property int index

            label: "Backup"
            symbol: "archivebox"
            hovered: index === 1
            pressed: index === 2
            ringed: index === 3
            enabled: index !== 4
        }
    }
}
