// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import Selvane

/// A field label above something that has no label of its own.
Column {
    id: group

    required property string label

    spacing: Theme.controls.labelGap

    StyledText {
        width: parent.width
        look: Theme.type.fieldLabel
        text: group.label
        color: Theme.textSoft
        elide: Text.ElideRight
        Accessible.ignored: true
    }
}
