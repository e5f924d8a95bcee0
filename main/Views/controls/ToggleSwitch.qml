// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import Selvane

/// A switch, without its text.
Choice {
    id: toggle

    signal toggled(bool checked)

    implicitWidth: track.width
    implicitHeight: Theme.controls.rowTarget

    onClicked: toggled(!checked)

    Rectangle {
        id: track

        anchors.verticalCenter: parent.verticalCenter
        width: Theme.controls.switchWidth
        height: Theme.controls.switchHeight
        radius: height / 2
        color: toggle.checked ? Theme.switchedOn : Qt.alpha(Theme.switchedOn, 0)
        border.width: toggle.checked ? 0 : Theme.hairline
        border.color: Theme.controlBorder

        Behavior on color {
            ColorAnimation { duration: Theme.motion.toggle; easing.type: Easing.OutQuad }
        }

        Rectangle {
            x: toggle.checked ? track.width - width - Theme.controls.switchInset : Theme.controls.switchInset
            anchors.verticalCenter: parent.verticalCenter
            width: Theme.controls.switchKnob
            height: width
            radius: width / 2
            color: toggle.checked ? Theme.onFill : Theme.textSoft

            Behavior on x {
                NumberAnimation { duration: Theme.motion.toggle; easing.type: Easing.OutQuad }
            }
        }
        FocusRing {
            controlRadius: track.radius
            visible: toggle.ringed
        }
    }
}
