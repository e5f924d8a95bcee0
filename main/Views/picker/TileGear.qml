// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import Selvane

/// The button on a tile that opens its profile's settings.
Pressable {
    id: gear

    required property bool isOnFocusedTile

    label: help
    tabStop: false // the settings have their own key
    implicitWidth: Theme.picker.tileGear
    implicitHeight: Theme.picker.tileGear

    Repeater {
        model: gear.hovered ? 1 : 0

        delegate: Rectangle {
            anchors.fill: gear
            radius: width / 2
            color: Theme.text
        }
    }
    PathIcon {
        anchors.centerIn: parent
        symbol: "gearshape"
        weight: gear.hovered ? PathIcon.Fill : PathIcon.Regular
        size: Theme.iconControl
        color: gear.hovered ? Theme.onFill : gear.isOnFocusedTile ? Theme.text : Theme.textFaint
    }
}
