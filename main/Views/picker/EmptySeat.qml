// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import Selvane

/// The outline of a future tile, as decoration.
Rectangle {
    width: Theme.picker.tileWidth
    height: Theme.picker.tileHeight
    radius: Theme.radiusTile
    color: Theme.transparent
    border.width: Theme.hairline
    border.color: Theme.raised

    Accessible.ignored: true

    LeafShape {
        x: Theme.space16
        y: Theme.space16
        width: Theme.picker.tileGlyph
        height: Theme.picker.tileGlyph
        tip: Theme.glyphTip * Theme.picker.tileGlyph
        color: Theme.surface
    }
}
