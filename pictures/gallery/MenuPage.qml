// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import Selvane

Item {
    id: page

    Component.onCompleted: {
        menu.openAt(page, 40, 40, 0)
        menu.move(1)
    }

    ContextMenu {
        id: menu

        MenuEntry { text: "Scollega da questo profilo"; icon: "link-break" }
        MenuEntry { text: "Rendi propria (copia indipendente)"; icon: "copy" }
        MenuDivider {}
        MenuEntry { text: Theme.revealText; symbol: "folder" }
    }
    GhostButton {
        x: 400
        y: 40
        text: "Torna"
        help: "Torna alla scelta del profilo (⌘0)"
        hovered: true
    }
}
