// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import Selvane

/// Lets the user pick a profile's symbol and colour.
ListWell {
    id: chooser

    required property profileLook look
    property bool picksOnMove: false ///< the arrows pick too, as among radio buttons

    signal picked(profileLook look)

    /// Gives the focus to the chosen symbol.
    function begin(): void {
        grid.moveTo(grid.current)
    }
    /// Moves the focus from the symbols to the colours or back; false if it is there already.
    function goOn(step: int): bool {
        const goes = grid.activeFocus === step > 0
        if (goes && step > 0)
            row.moveTo(row.current)
        else if (goes)
            grid.moveTo(grid.current)
        return goes
    }

    implicitWidth: grid.implicitWidth + 2 * Theme.space16
    implicitHeight: row.y + row.height + Theme.space16

    SymbolGrid {
        id: grid

        x: Theme.space16
        y: Theme.space16
        selection: chooser.look.symbol
        picksOnMove: chooser.picksOnMove
        onPicked: symbol => chooser.picked(chooser.look.withSymbol(symbol))
        onLeftBelow: row.moveTo(row.current)
    }
    Eyebrow {
        id: overline

        x: Theme.space16
        y: grid.y + grid.height + Theme.space16
        text: qsTr("Colore")
        Accessible.ignored: true
    }
    ColorRow {
        id: row

        x: Theme.space16
        y: overline.y + overline.height + Theme.space10
        look: chooser.look
        picksOnMove: chooser.picksOnMove
        onPicked: color => chooser.picked(chooser.look.withColor(color))
        Keys.onUpPressed: grid.moveTo(grid.current)
    }
}
