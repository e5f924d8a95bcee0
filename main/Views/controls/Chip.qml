// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import Selvane

/// A filter that is on or off.
Choice {
    id: chip

    required property string text

    signal toggled(bool checked)

    label: text
    implicitWidth: content.implicitWidth + 2 * Theme.space12
    implicitHeight: Theme.controls.smallHeight

    onClicked: toggled(!checked)

    Rectangle {
        anchors.fill: parent
        radius: height / 2
        color: chip.checked ? Theme.coolSoft : chip.hovered ? Theme.raised : Theme.wellFill
        border.width: Theme.hairline
        border.color: chip.checked ? Theme.coolLine : Theme.controlBorder

        FocusRing {
            controlRadius: parent.radius
            visible: chip.ringed
        }
    }
    Row {
        id: content

        anchors.centerIn: parent
        spacing: Theme.space6

        PathIcon {
            anchors.verticalCenter: parent.verticalCenter
            visible: chip.checked
            name: "check"
            size: Theme.iconCaret
            weight: PathIcon.Bold
            color: Theme.linked
        }
        StyledText {
            anchors.verticalCenter: parent.verticalCenter
            look: Theme.type.smallControl
            text: chip.text
            color: chip.checked ? Theme.linked : Theme.text
        }
    }
}
