// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import Selvane

/// One of the colours to choose from, shown on a profile's own leaf.
Pressable {
    id: cell

    required property profileLook look ///< with this colour
    required property bool chosen

    takesFocusOnClick: true
    implicitWidth: Theme.controls.colorCell
    implicitHeight: Theme.controls.colorCell
    help: label

    Accessible.role: Accessible.RadioButton
    Accessible.checked: chosen
    Accessible.description: "" // the help only repeats the name

    ProfileGlyph {
        size: Theme.controls.colorCell
        look: cell.look
        isLit: cell.chosen
    }
    LeafShape {
        anchors.fill: parent
        anchors.margins: -Theme.ringGap
        visible: cell.ringed
        tip: Theme.ringTip
        borderWidth: Theme.thickLine
        borderColor: Theme.focusRing
    }
}
