// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import Selvane

/// A profile's symbol on its leaf, lit or not. It only decorates the profile's name.
Item {
    id: glyph

    required property profileLook look
    required property real size
    property bool isLit: false
    /// Whether a lit leaf with a hue has a frame, because a hue alone doesn't tell that it is lit.
    property bool isFramed: true

    readonly property real iconSize: size >= Theme.controls.halfSymbol ? size / 2 : Math.round(size * 0.5625)

    implicitWidth: size
    implicitHeight: size

    LeafShape {
        anchors.fill: parent
        tip: Theme.glyphTip * glyph.size
        color: Theme.hues.leaf(glyph.look.color, glyph.isLit)

        Behavior on color {
            ColorAnimation { duration: Theme.motion.tileFocus; easing.type: Easing.OutCubic }
        }
    }
    Repeater {
        model: glyph.isFramed && glyph.isLit && Theme.hues.has(glyph.look.color) ? 1 : 0

        delegate: LeafShape {
            anchors.fill: glyph
            anchors.margins: -Theme.ringGap
            tip: Theme.ringTip
            borderWidth: Theme.thickLine
            borderColor: Theme.lit
        }
    }
    PathIcon {
        anchors.centerIn: parent
        symbol: glyph.look.symbol
        size: glyph.iconSize
        weight: glyph.isLit ? PathIcon.Regular : PathIcon.Automatic
        color: Theme.hues.symbol(glyph.look.color, glyph.isLit)
    }
}
