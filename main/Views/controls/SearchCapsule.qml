// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import Selvane

/// What is typed to find something in a list, and how much of the list that leaves.
Item {
    id: capsule

    required property string text
    required property string count ///< in words

    signal cleared

    implicitHeight: Theme.controls.height

    Accessible.role: Accessible.StaticText
    Accessible.name: qsTr("Cerca: %1, %2").arg(text).arg(count)

    LeafShape {
        anchors.fill: parent
        tip: Theme.buttonTip
        color: Theme.surface
        borderWidth: Theme.hairline
        borderColor: Theme.controlBorder
    }
    PathIcon {
        id: glass

        anchors.verticalCenter: parent.verticalCenter
        x: Theme.space16
        name: "magnifying-glass"
        size: Theme.iconControl
        color: Theme.textSoft
    }
    StyledText {
        id: typed

        anchors.verticalCenter: parent.verticalCenter
        x: glass.x + glass.width + Theme.space8
        width: Math.min(implicitWidth, counted.x - x - Theme.space12)
        look: Theme.type.field
        text: capsule.text
        elide: Text.ElideLeft
        Accessible.ignored: true
    }
    Rectangle {
        anchors.verticalCenter: parent.verticalCenter
        x: typed.x + typed.width + Theme.hairline
        width: Theme.hairline
        height: Theme.type.field.lineHeight
        color: Theme.lit
    }
    StyledText {
        id: counted

        anchors { right: key.left; rightMargin: Theme.space10; verticalCenter: parent.verticalCenter }
        look: Theme.type.small
        text: capsule.count
        color: Theme.textFaint
        Accessible.ignored: true
    }
    KeyCap {
        id: key

        anchors { right: parent.right; rightMargin: Theme.space6 + Theme.hairline; verticalCenter: parent.verticalCenter }
        keys: "Esc"
    }
    MouseArea {
        anchors.fill: key
        onClicked: capsule.cleared()
    }
}
