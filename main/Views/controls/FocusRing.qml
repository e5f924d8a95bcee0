// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import Selvane

/// The ring around a control with the keyboard focus. Set the radius of the control itself.
Rectangle {
    property real controlRadius: Theme.radiusControl

    anchors.fill: parent
    anchors.margins: -Theme.ringGap
    radius: controlRadius + Theme.ringGap
    color: Theme.transparent
    border.width: Theme.thickLine
    border.color: Theme.focusRing
    visible: false
}
