// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import Selvane

/// A short notice at the bottom of the window, shown while it has a text. Its owner decides how long.
Item {
    id: toast

    required property string text
    property string lastText ///< still readable while it leaves

    readonly property bool isShown: text !== ""

    anchors.fill: parent
    z: Theme.toastLayer
    visible: plate.opacity > 0

    onTextChanged: {
        if (text !== "") // `isShown` may not have followed yet
            lastText = text
    }

    LeafShape {
        id: plate

        property real slide: toast.isShown ? 0 : Theme.motion.toastSlide

        anchors.horizontalCenter: parent.horizontalCenter
        y: toast.height - height - Theme.sheets.toastMargin + slide
        width: Math.min(Theme.space16 + sign.width + Theme.space10 + Math.ceil(caption.implicitWidth) + Theme.space20,
                        toast.width - 2 * Theme.sheets.toastMargin)
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

        PathIcon {
            id: sign

            anchors.verticalCenter: parent.verticalCenter
            x: Theme.space16
            name: "check-circle"
            weight: PathIcon.Fill
            size: Theme.iconAlone
            color: Theme.onFill
        }
        StyledText {
            id: caption

            anchors.verticalCenter: parent.verticalCenter
            x: sign.x + sign.width + Theme.space10
            width: parent.width - x - Theme.space20
            look: Theme.type.notice
            text: toast.lastText
            color: Theme.onFill
            elide: Text.ElideRight
            Accessible.ignored: true
        }
    }
}
