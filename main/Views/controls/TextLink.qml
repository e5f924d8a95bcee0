// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import Selvane

/// A small underlined command in running text.
Pressable {
    id: link

    required property string text

    label: text
    implicitWidth: Math.ceil(caption.implicitWidth)
    implicitHeight: Theme.controls.rowTarget
    opacity: available ? 1 : Theme.disabledOpacity

    Accessible.role: Accessible.Link

    StyledText {
        id: caption

        anchors.centerIn: parent
        look: Theme.type.smallControl
        text: link.text
    }
    Rectangle {
        anchors.top: caption.bottom
        width: parent.width
        height: Theme.hairline
        color: link.hovered ? Theme.text : Theme.controlBorder
    }
    FocusRing {
        controlRadius: Theme.radiusSmall
        visible: link.ringed
    }
}
