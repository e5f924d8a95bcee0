// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import Selvane

/// A profile's symbol on its leaf: unlit on a dark tile, else lit. Decoration beside the profile's name.
Item {
    id: glyph

    required property string symbol
    property real size: 80
    property bool onDark: true

    readonly property real iconSize: size >= 40 ? size / 2 : Math.round(size * 0.5625)

    implicitWidth: size
    implicitHeight: size

    LeafShape {
        anchors.fill: parent
        tip: Theme.glyphTip * glyph.size
        color: glyph.onDark ? Theme.raised : Theme.lit

        Behavior on color {
            ColorAnimation { duration: Theme.tileFocus; easing.type: Easing.OutCubic }
        }
    }
    PathIcon {
        anchors.centerIn: parent
        symbol: glyph.symbol
        size: glyph.iconSize
        weight: glyph.onDark ? PathIcon.Automatic : PathIcon.Regular
        color: glyph.onDark ? Theme.cool : Theme.onFill
    }
}
