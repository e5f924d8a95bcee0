// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import Selvane

/// Fades out whatever extends beyond an end of a strip.
Rectangle {
    id: fade

    property bool isRight: false

    readonly property color open: Qt.alpha(Theme.windowFill, 0)

    anchors.left: isRight ? undefined : parent.left
    anchors.right: isRight ? parent.right : undefined
    z: 2
    width: Theme.picker.stripFade
    height: parent.height
    gradient: Gradient {
        orientation: Gradient.Horizontal

        GradientStop { position: 0; color: fade.isRight ? fade.open : Theme.windowFill }
        GradientStop { position: 1; color: fade.isRight ? Theme.windowFill : fade.open }
    }

    Accessible.ignored: true
}
