// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick

/// The positions of the picker's parts, from the top. `height` is the window height they are designed for.
Measures {
    required property real margin
    required property real barTop
    required property real overline
    required property real titleHeight
    required property real titleGap
    required property real subtitleGap
    required property real tileHeight
    required property real footer ///< from the bottom
    required property real below ///< from the tiles to the bottom

    readonly property real title: overline + scaled(16) + 4
    readonly property real subtitle: title + titleHeight + titleGap
    readonly property real tiles: subtitle + scaled(24) + subtitleGap
    readonly property real height: tiles + tileHeight + below
}
