// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import Selvane

/// The symbols and colours to choose from, over the window. Picking a symbol, or the chosen
/// colour again, closes it.
Popover {
    id: popover

    required property profileLook look

    signal picked(profileLook look)

    /// Gives the focus to the chosen symbol.
    function begin(): void {
        chooser.begin()
    }

    padding: 0
    fill: Theme.wellFill

    LookChooser {
        id: chooser

        outside: Theme.transparent
        look: popover.look
        onPicked: look => {
            if (look.color === popover.look.color)
                popover.close()
            popover.picked(look)
        }
        Keys.onTabPressed: event => event.accepted = chooser.goOn(1)
        Keys.onBacktabPressed: event => event.accepted = chooser.goOn(-1)
    }
}
