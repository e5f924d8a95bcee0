// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import Selvane

/// The symbols to choose from, over the window. Picking one closes it.
Popover {
    id: popover

    required property string selection ///< symbol name

    signal picked(string symbol)

    /// Gives the focus to the chosen symbol.
    function begin(): void {
        grid.moveTo(Math.max(0, grid.symbols.indexOf(popover.selection)))
    }

    padding: 0
    fill: Theme.wellFill

    SymbolGrid {
        id: grid

        outside: Theme.transparent
        selection: popover.selection
        onPicked: symbol => {
            popover.close()
            popover.picked(symbol)
        }
    }
}
