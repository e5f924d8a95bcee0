// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import Selvane

/// Dims the window and takes all input while there is a message. Meanwhile the light moves from leaf to leaf.
FocusScope {
    id: overlay

    required property string message
    property string lastMessage ///< still readable while it fades
    property Item previousFocus: null
    property real light ///< 0: the lower leaf is lit, 1: the upper leaf

    readonly property bool isBusy: message !== ""

    function mix(amount: real): color {
        const dark = Theme.separator
        const lit = Theme.lit
        return Qt.rgba(dark.r + (lit.r - dark.r) * amount, dark.g + (lit.g - dark.g) * amount,
                       dark.b + (lit.b - dark.b) * amount, 1)
    }

    anchors.fill: parent
    z: Theme.busyLayer
    opacity: isBusy ? 1 : 0
    visible: isBusy || opacity > 0
    enabled: isBusy

    Accessible.role: Accessible.AlertMessage
    Accessible.name: message

    onMessageChanged: {
        if (isBusy)
            lastMessage = message
    }
    onIsBusyChanged: {
        if (isBusy) {
            previousFocus = Window.activeFocusItem
            forceActiveFocus(Qt.OtherFocusReason)
        } else if (previousFocus) {
            previousFocus.forceActiveFocus(Qt.OtherFocusReason)
        }
    }
    Keys.onPressed: event => event.accepted = true

    Behavior on opacity {
        NumberAnimation { duration: Theme.motion.busyFade }
    }
    SequentialAnimation on light {
        running: overlay.isBusy && !Theme.reducedMotion
        loops: Animation.Infinite
        onStopped: overlay.light = 0

        NumberAnimation { to: 1; duration: Theme.motion.busyCross; easing.type: Easing.InOutSine }
        NumberAnimation { to: 0; duration: Theme.motion.busyCross; easing.type: Easing.InOutSine }
    }

    Rectangle {
        anchors.fill: parent
        color: Theme.scrim
    }
    MouseArea {
        anchors.fill: parent
        acceptedButtons: Qt.AllButtons
        hoverEnabled: true
        onWheel: wheel => wheel.accepted = true
    }
    Rectangle {
        anchors.centerIn: parent
        width: Math.min(parent.width - 2 * Theme.sheets.margin,
                        Math.max(Theme.sheets.busyWidth, caption.implicitWidth + 2 * Theme.sheets.busySide))
        height: mark.height + Theme.space20 + caption.height + 2 * Theme.sheets.busyMargin
        radius: Theme.radiusTile
        color: Theme.surface
        border.width: Theme.hairline
        border.color: Theme.separator

        BrandMark {
            id: mark

            anchors.horizontalCenter: parent.horizontalCenter
            y: Theme.sheets.busyMargin
            size: Theme.sheets.busyMark
            upper: overlay.mix(overlay.light)
            lower: overlay.mix(1 - overlay.light)
        }
        StyledText {
            id: caption

            anchors.top: mark.bottom
            anchors.topMargin: Theme.space20
            x: Theme.sheets.busySide
            width: parent.width - 2 * x
            horizontalAlignment: Text.AlignHCenter
            look: Theme.type.busyMessage
            text: overlay.lastMessage
            wrapMode: Text.Wrap
            Accessible.ignored: true
        }
    }
}
