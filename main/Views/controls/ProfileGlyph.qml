// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import Selvane

/// A profile's symbol on its leaf, lit or not. It only decorates the profile's name.
Item {
    id: glyph

    required property string symbol
    required property real size
    property bool isLit: false

    readonly property real iconSize: size >= Theme.controls.halfSymbol ? size / 2 : Math.round(size * 0.5625)

    implicitWidth: size
    implicitHeight: size

    LeafShape {
        anchors.fill: parent
        tip: Theme.glyphTip * glyph.size
        color: glyph.isLit ? Theme.lit : Theme.raised

        Behavior on color {
            ColorAnimation { duration: Theme.motion.tileFocus; easing.type: Easing.OutCubic }
        }
    }
    PathIcon {
        anchors.centerIn: parent
        symbol: glyph.symbol
        size: glyph.iconSize
        weight: glyph.isLit ? PathIcon.Regular : PathIcon.Automatic
        color: glyph.isLit ? Theme.onFill : Theme.linked
    }
}
