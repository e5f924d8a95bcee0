// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import Selvane

/// A switch. It shows `checked` and asks for the other value; whoever owns the value changes it.
Pressable {
    id: toggle

    required property bool checked

    signal toggled(bool checked)

    answersReturn: false
    takesFocusOnClick: true
    implicitWidth: 34
    implicitHeight: Theme.controls.rowTarget
    opacity: enabled ? 1 : Theme.disabledOpacity

    Accessible.role: Accessible.CheckBox
    Accessible.checkable: true
    Accessible.checked: checked
    Accessible.onToggleAction: toggle.clicked()

    onClicked: toggled(!checked)

    Rectangle {
        id: track

        anchors.verticalCenter: parent.verticalCenter
        width: 34
        height: 20
        radius: height / 2
        color: toggle.checked ? Theme.switchedOn : Qt.alpha(Theme.switchedOn, 0)
        border.width: toggle.checked ? 0 : Theme.hairline
        border.color: Theme.controlBorder

        Behavior on color {
            ColorAnimation { duration: Theme.motion.toggle; easing.type: Easing.OutQuad }
        }

        Rectangle {
            x: toggle.checked ? 18 : 4
            anchors.verticalCenter: parent.verticalCenter
            width: 12
            height: 12
            radius: 6
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
