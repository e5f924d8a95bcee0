// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import Selvane

/// The command of a notice, in the notice's colours.
Pressable {
    id: button

    required property string text

    label: text
    // Tab would go there from anywhere; the notice's key does.
    tabStop: false
    implicitWidth: Math.ceil(caption.implicitWidth) + 2 * Theme.space12
    implicitHeight: Theme.controls.smallHeight

    Accessible.focusable: enabled

    LeafShape {
        anchors.fill: parent
        tip: Theme.buttonTip
        color: button.hovered ? Theme.onFill : Theme.onFillSoft

        Behavior on color {
            ColorAnimation { duration: Theme.motion.hover }
        }
    }
    LeafShape {
        anchors.fill: parent
        anchors.margins: -Theme.ringGap
        visible: button.ringed
        tip: Theme.ringTip
        borderWidth: Theme.thickLine
        borderColor: Theme.onFill
    }
    StyledText {
        id: caption

        anchors.centerIn: parent
        look: Theme.type.noticeAction
        text: button.text
        color: button.hovered ? Theme.text : Theme.onFill
        Accessible.ignored: true
    }
}
