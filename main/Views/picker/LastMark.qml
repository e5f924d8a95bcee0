// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import Selvane

/// Marks the profile that was launched last.
Row {
    spacing: Theme.space4

    LeafShape {
        anchors.verticalCenter: parent.verticalCenter
        width: Theme.picker.lastMark
        height: Theme.picker.lastMark
        tip: Theme.hairline
        color: Theme.lit
    }
    StyledText {
        leftPadding: Theme.space4
        look: Theme.type.status
        text: qsTr("ultimo")
        Accessible.ignored: true
    }
    StyledText {
        look: Theme.type.status
        text: "·"
        color: Theme.textFaint
        Accessible.ignored: true
    }
}
