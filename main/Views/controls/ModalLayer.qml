// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import Selvane

/// A panel over the dimmed window, shown from its creation until `closed`. Escape cancels and Return
/// confirms; both close it, but for a confirmation that `closesWhenDone`. The focus stays inside and then returns to
/// where it was, and no key reaches what lies behind.
FocusScope {
    id: layer

    default property alias content: plate.data
    property string title ///< accessible name
    property bool confirmEnabled: true
    property bool cancellable: true
    property bool closesWhenDone: false ///< whoever is asked by `confirmed` calls `close` after success
    property Item firstFocus: null ///< otherwise the first control
    property real plateWidth: Theme.sheets.alertWidth
    property real plateHeight: 0
    property Item previousFocus: null
    property bool isOpen: false
    property bool hasBegun: false ///< it has the focus of its window

    signal confirmed
    signal cancelled
    signal closed

    function confirm(): void {
        if (!layer.isOpen || !layer.confirmEnabled)
            return
        if (!layer.closesWhenDone)
            layer.close()
        layer.confirmed()
    }
    function cancel(): void {
        if (!layer.isOpen || !layer.cancellable)
            return
        layer.close()
        layer.cancelled()
    }
    function close(): void {
        layer.isOpen = false
        if (layer.previousFocus)
            layer.previousFocus.forceActiveFocus(Qt.OtherFocusReason)
        layer.enabled = false // only now: nothing else has the focus in between
    }
    function begin(): void {
        layer.previousFocus = layer.Window.activeFocusItem
        layer.hasBegun = true
        layer.takeFocus()
    }
    function takeFocus(): void {
        if (layer.firstFocus)
            layer.firstFocus.forceActiveFocus(Qt.OtherFocusReason)
        else
            start.nextItemInFocusChain(true).forceActiveFocus(Qt.OtherFocusReason)
    }

    anchors.fill: parent
    z: Theme.sheetLayer

    Accessible.role: Accessible.Dialog
    Accessible.name: title

    Component.onCompleted: {
        isOpen = true
        if (Window.active || Window.activeFocusItem)
            begin()
    }
    Keys.onEscapePressed: cancel()
    Keys.onReturnPressed: confirm()
    Keys.onEnterPressed: confirm()
    // Tab belongs to the window, which moves the focus.
    Keys.onPressed: event => event.accepted = event.key !== Qt.Key_Tab && event.key !== Qt.Key_Backtab

    // A window in the background tells what has its focus only once it has the keyboard.
    Timer {
        interval: 0
        running: layer.isOpen && !layer.hasBegun && layer.Window.active
        onTriggered: layer.begin()
    }

    states: State {
        name: "open"
        when: layer.isOpen

        PropertyChanges {
            scrim.opacity: 1
            plate.opacity: 1
            plate.slide: 0
        }
    }
    transitions: [
        Transition {
            to: "open"

            NumberAnimation {
                properties: "opacity,slide"
                duration: Theme.motion.sheetIn
                easing.type: Easing.OutCubic
            }
        },
        Transition {
            from: "open"

            SequentialAnimation {
                NumberAnimation {
                    properties: "opacity,slide"
                    duration: Theme.motion.sheetOut
                    easing.type: Easing.InCubic
                }
                ScriptAction {
                    script: layer.closed()
                }
            }
        }
    ]

    Rectangle {
        id: scrim

        anchors.fill: parent
        color: Theme.scrim
        opacity: 0

        MouseArea {
            anchors.fill: parent
            acceptedButtons: Qt.AllButtons
            hoverEnabled: true
            onWheel: wheel => wheel.accepted = true
        }
    }

    // Tab goes from either end back to the other.
    Item {
        id: start

        activeFocusOnTab: true
        Accessible.ignored: true
        onActiveFocusChanged: {
            if (activeFocus)
                end.nextItemInFocusChain(false).forceActiveFocus(Qt.BacktabFocusReason)
        }
    }
    Rectangle {
        id: plate

        property real slide: Theme.motion.sheetSlide

        x: Math.round((layer.width - width) / 2)
        y: Math.round((layer.height - height) / 2) + slide
        width: Math.min(layer.plateWidth, layer.width - 2 * Theme.sheets.margin)
        height: layer.plateHeight
        radius: Theme.radiusSheet
        color: Theme.surface
        border.width: Theme.hairline
        border.color: Theme.separator
        opacity: 0
    }
    Item {
        id: end

        activeFocusOnTab: true
        Accessible.ignored: true
        onActiveFocusChanged: {
            if (activeFocus)
                start.nextItemInFocusChain(true).forceActiveFocus(Qt.TabFocusReason)
        }
    }
}
