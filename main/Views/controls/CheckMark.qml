// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import Selvane

/// The square of a check box.
Rectangle {
    id: mark

    required property bool checked
    required property bool ringed

    width: Theme.controls.mark
    height: width
    radius: Theme.radiusSmall
    color: checked ? Theme.switchedOn : Theme.transparent
    border.width: checked ? 0 : Theme.hairline
    border.color: Theme.controlBorder

    PathIcon {
        anchors.centerIn: parent
        visible: mark.checked
        name: "check"
        size: Theme.controls.tick
        weight: PathIcon.Bold
        color: Theme.onFill
    }
    FocusRing {
        controlRadius: mark.radius
        visible: mark.ringed
    }
}
