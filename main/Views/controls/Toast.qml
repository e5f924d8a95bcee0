// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import Selvane

/// A short notice at the bottom of the window, shown while it has a text. Its owner decides how long, and for one
/// with an action shows that with `remaining`.
Item {
    id: toast

    required property string text
    property string action ///< the label of its button; empty for none
    required property real remaining ///< of the time, from 1 down to 0
    property real aside: 0 ///< how much at the left it keeps clear of, as far as there is room
    property string lastText ///< still readable while it leaves
    property string lastAction
    property Item previousFocus: null

    readonly property bool isShown: text !== ""
    readonly property bool offers: lastAction !== ""
    /// Whether somebody is about to use the action.
    readonly property bool isHeld: isShown && (pointer.hovered || button.activeFocus)

    signal triggered

    function takeFocus(): void {
        if (button.activeFocus || toast.action === "")
            return
        toast.previousFocus = toast.Window.activeFocusItem
        button.forceActiveFocus(Qt.ShortcutFocusReason)
    }
    function giveFocusBack(): void {
        if (button.activeFocus && toast.previousFocus)
            toast.previousFocus.forceActiveFocus(Qt.OtherFocusReason)
        button.focus = false
        toast.previousFocus = null
    }
    function keep(): void {
        if (toast.text === "")
            return
        toast.lastText = toast.text
        toast.lastAction = toast.action
    }

    anchors.fill: parent
    z: Theme.toastLayer
    visible: plate.opacity > 0

    // Both may change, one after the other.
    onTextChanged: keeping.restart()
    onActionChanged: {
        keeping.restart()
        if (toast.action === "")
            toast.giveFocusBack()
    }
    Component.onCompleted: keep()

    Timer {
        id: keeping

        interval: 0
        onTriggered: toast.keep()
    }
    LeafShape {
        id: plate

        property real slide: toast.isShown ? 0 : Theme.motion.toastSlide

        readonly property real captionRight: toast.offers ? Theme.space16 + button.width + Theme.space8 : Theme.space20
        readonly property real rightmost: toast.width - Theme.sheets.toastMargin - width

        x: Math.round(Math.min(rightmost, (toast.aside + toast.width - width) / 2))
        y: toast.height - height - Theme.sheets.toastMargin + slide
        width: Math.min(caption.x + Math.ceil(caption.implicitWidth) + captionRight, toast.width - 2 * Theme.sheets.toastMargin)
        height: Theme.sheets.toastHeight
        tip: Theme.buttonTip
        color: Theme.text
        opacity: toast.isShown ? 1 : 0

        Accessible.role: Accessible.AlertMessage
        Accessible.name: toast.text

        Behavior on opacity {
            NumberAnimation {
                duration: toast.isShown ? Theme.motion.toastIn : Theme.motion.toastOut
                easing.type: toast.isShown ? Easing.OutCubic : Easing.InCubic
            }
        }
        Behavior on slide {
            NumberAnimation {
                duration: toast.isShown ? Theme.motion.toastIn : Theme.motion.toastOut
                easing.type: toast.isShown ? Easing.OutCubic : Easing.InCubic
            }
        }

        HoverHandler {
            id: pointer

            enabled: toast.offers
        }
        PathIcon {
            id: sign

            anchors.verticalCenter: parent.verticalCenter
            x: Theme.space16
            visible: !toast.offers
            name: "check-circle"
            weight: PathIcon.Fill
            size: Theme.iconAlone
            color: Theme.onFill
        }
        EmptyingLeaf {
            anchors.centerIn: sign
            visible: toast.offers
            filled: toast.remaining
        }
        StyledText {
            id: caption

            anchors.verticalCenter: parent.verticalCenter
            x: sign.x + sign.width + Theme.space10
            width: parent.width - x - plate.captionRight
            look: Theme.type.notice
            text: toast.lastText
            color: Theme.onFill
            elide: Text.ElideRight
            Accessible.ignored: true
        }
        ToastAction {
            id: button

            objectName: "toastAction"
            anchors.verticalCenter: parent.verticalCenter
            x: parent.width - width - Theme.space8
            visible: toast.offers
            available: toast.action !== ""
            text: toast.lastAction
            onClicked: toast.triggered()

            Accessible.description: toast.text
            Keys.onEscapePressed: toast.giveFocusBack()
        }
    }
}
