// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import Selvane

/// The quiet button: a label, perhaps with an icon, or an icon alone, which then needs a `label`.
Pressable {
    id: button

    enum Size { Small, Medium, Large }

    property string text
    property string symbol
    property int size: GhostButton.Medium ///< Large: beside a confirm button
    property bool bare: false ///< no border at rest
    property bool soft: false ///< the label is as faint as the icon
    property bool held: false ///< lit while what it has opened is open
    property real gap: small ? Theme.space6 : Theme.space8 ///< from the icon to the label

    readonly property bool iconOnly: text === ""
    readonly property bool small: size === GhostButton.Small
    readonly property bool active: hovered || pressed
    readonly property real padding: small ? Theme.space10 : size === GhostButton.Large ? Theme.space16 : Theme.space12

    label: text
    implicitHeight: small ? Theme.controls.smallHeight : size === GhostButton.Large ? Theme.controls.largeHeight
                                                                           : Theme.controls.height
    implicitWidth: iconOnly ? implicitHeight : Math.ceil(content.implicitWidth) + 2 * (padding + Theme.hairline)
    opacity: available ? 1 : Theme.disabledOpacity

    Rectangle {
        anchors.fill: parent
        radius: Theme.radiusControl
        color: button.pressed || button.held ? Theme.separator : button.hovered ? Theme.raised : Qt.alpha(Theme.raised, 0)
        border.width: Theme.hairline
        border.color: button.active ? Theme.controlBorder : button.bare ? Qt.alpha(Theme.separator, 0)
                                                                        : Theme.separator

        Behavior on color {
            ColorAnimation { duration: Theme.motion.hover }
        }
        Behavior on border.color {
            ColorAnimation { duration: Theme.motion.hover }
        }
    }
    FocusRing {
        visible: button.ringed
    }
    Row {
        id: content

        anchors.centerIn: parent
        spacing: button.gap

        PathIcon {
            anchors.verticalCenter: parent.verticalCenter
            visible: button.symbol !== ""
            symbol: button.symbol
            size: button.iconOnly ? Theme.iconAlone : Theme.iconControl
            color: button.active || button.held ? Theme.text : Theme.textSoft
        }
        StyledText {
            anchors.verticalCenter: parent.verticalCenter
            visible: !button.iconOnly
            look: button.small ? Theme.type.smallControl : Theme.type.control
            text: button.text
            color: button.soft && !button.active ? Theme.textSoft : Theme.text
        }
    }
}
