// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import Selvane

/// How many items of a component no longer follow the source, and the way back for all of them.
Row {
    id: mark

    required property ComponentModel component

    signal relinkAsked

    visible: component.changed !== ""
    spacing: Theme.space8

    StyledText {
        anchors.verticalCenter: parent.verticalCenter
        look: Theme.type.smallControl
        text: mark.component.changed
        color: Theme.lit
        Accessible.role: Accessible.StaticText
        Accessible.name: text
    }
    StyledText {
        anchors.verticalCenter: parent.verticalCenter
        look: Theme.type.small
        text: qsTr("·")
        color: Theme.textFaint
        Accessible.ignored: true
    }
    TextLink {
        text: qsTr("Unifica di nuovo")
        label: qsTr("Unifica di nuovo: %1").arg(mark.component.title)
        onClicked: mark.relinkAsked()
    }
}
