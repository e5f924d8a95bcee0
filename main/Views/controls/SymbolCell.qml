// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import Selvane

/// One cell of the symbol grid.
Pressable {
    id: cell

    required property string symbol
    required property bool chosen

    takesFocusOnClick: true
    implicitWidth: Theme.controls.gridCell
    implicitHeight: Theme.controls.gridCell

    Accessible.role: Accessible.RadioButton
    Accessible.checked: chosen

    LeafShape {
        anchors.fill: parent
        visible: cell.chosen || cell.hovered
        tip: Theme.glyphTip * Theme.controls.gridCell
        color: cell.chosen ? Theme.lit : Theme.raised
    }
    LeafShape {
        anchors.fill: parent
        anchors.margins: -Theme.ringGap
        visible: cell.ringed
        tip: Theme.ringTip
        borderWidth: Theme.thickLine
        borderColor: Theme.focusRing
    }
    PathIcon {
        anchors.centerIn: parent
        symbol: cell.symbol
        size: Theme.controls.gridIcon
        color: cell.chosen ? Theme.onFill : cell.hovered ? Theme.text : Theme.textSoft
    }
}
