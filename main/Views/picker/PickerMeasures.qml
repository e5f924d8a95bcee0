// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick

/// The measures of the picker and its tiles. Whatever holds text grows with it, except for the title, which
/// is large enough.
Measures {
    id: measures

    // ---- Window

    readonly property size window: Qt.size(980, full.height)
    readonly property size minimum: Qt.size(720, compact.height)
    readonly property real fullWidth: 900 ///< below this or `fullHeight`, the compact layout applies
    readonly property real fullHeight: full.height - 40
    readonly property real column: 1160
    readonly property real bar: scaled(40)
    readonly property real spareAbove: 0.45
    readonly property real opticalMargin: 3 ///< moves the title's C to where it looks aligned
    readonly property real foliageTop: 108

    readonly property PickerPlaces full: PickerPlaces {
        textScale: measures.textScale
        margin: 36
        barTop: 24
        overline: 72 + measures.bar
        titleHeight: 72
        titleGap: 12
        subtitleGap: 36
        tileHeight: measures.tileHeight
        footer: 32
        below: 92 + measures.scaled(20)
    }
    readonly property PickerPlaces compact: PickerPlaces {
        textScale: measures.textScale
        margin: 24
        barTop: 20
        overline: 48 + measures.bar
        titleHeight: 56
        titleGap: 8
        subtitleGap: 32
        tileHeight: measures.tileHeightCompact
        footer: 24
        below: 56 + measures.scaled(20)
    }

    // ---- Tiles

    readonly property real tileWidth: 32 + scaled(152)
    readonly property real tileHeight: tileNameTop + scaled(156)
    readonly property real tileHeightCompact: tileNameTop + scaled(140)
    readonly property real tileGlyph: 80
    readonly property real tileGear: 28
    readonly property real tileGearMargin: 10
    readonly property real tileNameTop: 116
    readonly property real tileSummaryTop: tileNameTop + scaled(28)
    readonly property real tileBadgeBottom: 16 + scaled(32)
    readonly property real statusDot: 8
    readonly property real lastMark: 9
    readonly property real addTileWidth: scaled(124)
    readonly property real addLeaf: 56
    readonly property real addIcon: 24
    readonly property real leafOutline: 1.5
    readonly property list<real> seatOpacities: [1, 0.62, 0.28]

    // ---- The strip of tiles

    readonly property real stripSpare: 12 ///< keeps the scale, ring and shadow of a tile from being clipped
    readonly property real stripEdge: 48
    readonly property real stripFade: 40

    // ---- The search

    readonly property real capsule: 380
}
