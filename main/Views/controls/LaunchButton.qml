// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import Selvane

/// The prominent button, shaped like a leaf. An arrow at the end of the text is shown as an icon.
Pressable {
    id: button

    enum Size { Small, Medium, Large }

    required property string text
    property int size: LaunchButton.Large
    property bool destructive: false

    readonly property bool large: size === LaunchButton.Large
    readonly property bool small: size === LaunchButton.Small
    readonly property real padding: large ? Theme.controls.launchPadding : small ? Theme.space12 : Theme.controls.confirmPadding
    readonly property bool hasArrow: text.endsWith("→")
    readonly property color labelColor: available ? Theme.onFill : Theme.textFaint
    readonly property color fill: {
        if (!button.available)
            return Theme.raised
        if (button.pressed)
            return button.destructive ? Theme.accent2Pressed : Theme.accentPressed
        if (button.hovered)
            return button.destructive ? Theme.accent2Hover : Theme.accentHover
        return button.destructive ? Theme.danger : Theme.lit
    }

    label: text
    implicitWidth: Math.ceil(content.implicitWidth) + 2 * padding
    implicitHeight: large ? Theme.controls.launchHeight : small ? Theme.controls.smallHeight : Theme.controls.largeHeight
    scale: pressed ? Theme.motion.pressedScale : 1

    Behavior on scale {
        NumberAnimation { duration: Theme.motion.tilePress; easing.type: Easing.OutQuad }
    }

    LeafShape {
        anchors.fill: parent
        tip: Theme.buttonTip
        color: button.fill

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
        borderColor: Theme.focusRing
    }
    Row {
        id: content

        anchors.centerIn: parent
        spacing: Theme.space12

        StyledText {
            anchors.verticalCenter: parent.verticalCenter
            look: button.large ? Theme.type.launchLabel : button.small ? Theme.type.smallConfirm : Theme.type.confirmLabel
            text: button.hasArrow ? button.text.slice(0, -1).trim() : button.text
            color: button.labelColor
        }
        PathIcon {
            anchors.verticalCenter: parent.verticalCenter
            visible: button.hasArrow
            name: "arrow-right"
            weight: PathIcon.Bold
            size: Theme.iconControl
            color: button.labelColor
        }
    }
}
