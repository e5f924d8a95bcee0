// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import Selvane

/// A profile's symbol as a button that lets the user choose another, and a colour.
Pressable {
    id: button

    required property profileLook look
    required property real size
    property SymbolPopover choice: null ///< created when first opened

    signal picked(profileLook look)

    function open(): void {
        if (!choice)
            choice = choiceComponent.createObject(button) as SymbolPopover
        choice.openAt(button, 0, button.height + Theme.space8, button.height)
        choice.begin()
    }

    implicitWidth: size
    implicitHeight: size
    label: qsTr("Cambia icona")
    help: qsTr("Cambia icona")
    onClicked: open()

    ProfileGlyph {
        size: button.size
        look: button.look
    }
    LeafShape {
        anchors.fill: parent
        anchors.margins: -Theme.ringGap
        visible: button.ringed
        tip: Theme.ringTip
        borderWidth: Theme.thickLine
        borderColor: Theme.focusRing
    }
    Rectangle {
        anchors { right: parent.right; bottom: parent.bottom }
        anchors.rightMargin: -Theme.manage.pencilOverlap.x - Theme.manage.pencilRing
        anchors.bottomMargin: -Theme.manage.pencilOverlap.y - Theme.manage.pencilRing
        width: Theme.manage.pencilBadge + 2 * Theme.manage.pencilRing
        height: width
        radius: width / 2
        color: button.hovered ? Theme.separator : Theme.raised
        border.width: Theme.manage.pencilRing
        border.color: Theme.windowFill

        PathIcon {
            anchors.centerIn: parent
            symbol: "pencil"
            size: Theme.iconControl
            weight: PathIcon.Regular
            color: Theme.text
        }
    }
    Component {
        id: choiceComponent

        SymbolPopover {
            look: button.look
            onPicked: look => button.picked(look)
        }
    }
}
