// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick

/// A text style: the font and the line height.
QtObject {
    required property string family
    required property real size
    required property real line
    property int weight: Font.Normal
    property bool italic: false
    property real tracking: 0
    property int capitalization: Font.MixedCase
    property real scale: 1

    readonly property real lineHeight: Math.round(line * scale)
    readonly property font font: Qt.font({
        family: family,
        pixelSize: Math.round(size * scale),
        weight: weight,
        italic: italic,
        letterSpacing: tracking * scale,
        capitalization: capitalization
    })
}
