// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import Selvane

/// Takes all input while there is a message. If that lasts, it dims the window and shows the message, how far the work
/// is, and a button that cancels it. Meanwhile the light moves from leaf to leaf.
FocusScope {
    id: overlay

    required property string message
    property WorkProgress work: null
    property string lastMessage ///< still readable while it fades
    property Item previousFocus: null
    property real light ///< 0: the lower leaf is lit, 1: the upper leaf
    property bool isShown: false
    property int delay: Theme.motion.busyDelay

    readonly property bool isBusy: message !== ""
    property bool covers: false ///< busy, and it has the focus
    readonly property bool hasProgress: work !== null && work.detail !== ""
    readonly property string headline: work !== null && work.headline !== "" ? work.headline : lastMessage

    function mix(amount: real): color {
        const dark = Theme.separator
        const lit = Theme.lit
        return Qt.rgba(dark.r + (lit.r - dark.r) * amount, dark.g + (lit.g - dark.g) * amount,
                       dark.b + (lit.b - dark.b) * amount, 1)
    }
    function update(): void {
        if (isBusy) {
            previousFocus = Window.activeFocusItem
            enabled = true
            forceActiveFocus(Qt.OtherFocusReason)
            covers = true
            delayTimer.start()
        } else {
            covers = false
            delayTimer.stop()
            if (!least.running)
                isShown = false
            if (previousFocus)
                previousFocus.forceActiveFocus(Qt.OtherFocusReason)
            enabled = false // only now: nothing else has the focus in between
        }
    }

    anchors.fill: parent
    z: Theme.busyLayer
    opacity: isShown ? 1 : 0
    visible: isBusy || isShown || opacity > 0
    enabled: false

    Accessible.role: Accessible.AlertMessage
    Accessible.name: headline

    Component.onCompleted: {
        lastMessage = message
        if (isBusy)
            update()
    }
    // Bindings to the message may still have its last value.
    onMessageChanged: {
        if (message !== "")
            lastMessage = message
    }
    onIsBusyChanged: update()
    Keys.onEscapePressed: work?.cancel()
    Keys.onPressed: event => event.accepted = true

    Timer {
        id: delayTimer

        interval: overlay.delay
        onTriggered: {
            overlay.isShown = true
            least.start()
        }
    }
    Timer {
        id: least

        interval: Theme.motion.busyLeast
        onTriggered: {
            if (!overlay.isBusy)
                overlay.isShown = false
        }
    }
    Behavior on opacity {
        NumberAnimation { duration: Theme.motion.busyFade }
    }
    SequentialAnimation on light {
        running: overlay.isShown && !Theme.reducedMotion
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
                        overlay.hasProgress ? Theme.sheets.progressWidth
                                            : Math.max(Theme.sheets.busyWidth, caption.implicitWidth + 2 * Theme.sheets.busySide))
        height: column.height + 2 * column.y
        radius: Theme.radiusTile
        color: Theme.surface
        border.width: Theme.hairline
        border.color: Theme.separator

        Column {
            id: column

            x: Theme.sheets.busySide
            y: Theme.sheets.busyMargin + Theme.hairline
            width: parent.width - 2 * x

            BrandMark {
                anchors.horizontalCenter: parent.horizontalCenter
                size: Theme.sheets.busyMark
                upper: overlay.mix(overlay.light)
                lower: overlay.mix(1 - overlay.light)
            }
            StyledText {
                id: caption

                width: parent.width
                topPadding: Theme.space20
                horizontalAlignment: Text.AlignHCenter
                look: Theme.type.busyMessage
                text: overlay.headline
                wrapMode: Text.Wrap
                Accessible.ignored: true
            }
            WorkDetail {
                width: parent.width
                visible: overlay.hasProgress
                work: overlay.work
            }
        }
    }
}
