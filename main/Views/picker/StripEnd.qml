// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import Selvane

/// What follows the last tile: the button for a new profile, and empty seats in the space that is left.
Row {
    id: end

    required property int tiles
    required property real free ///< the width of the strip without its margins
    required property bool isCompact

    readonly property real seat: Theme.picker.tileWidth + Theme.cardGap
    readonly property int seats: Math.floor((free - tiles * seat - Theme.picker.addTileWidth) / seat)

    signal newProfileAsked

    spacing: Theme.cardGap

    AddProfileTile {
        isCompact: end.isCompact
        onClicked: end.newProfileAsked()
    }
    Repeater {
        model: end.isCompact ? 0 : Math.max(0, Math.min(Theme.picker.seatOpacities.length, end.seats))

        delegate: EmptySeat {
            required property int index

            opacity: Theme.picker.seatOpacities[index]
        }
    }
}
