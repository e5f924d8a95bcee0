// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import Selvane

/// The button for a new profile, after the last tile.
Pressable {
    id: tile

    required property bool isCompact
    readonly property bool isLit: hovered || ringed

    label: qsTr("Nuovo profilo")
    width: Theme.picker.addTileWidth
    height: isCompact ? Theme.picker.tileHeightCompact : Theme.picker.tileHeight

    Rectangle {
        anchors.fill: parent
        radius: Theme.radiusTile
        color: tile.isLit ? Theme.surface : Theme.transparent
        border.width: Theme.hairline
        border.color: tile.isLit ? Theme.controlBorder : Theme.separator
    }
    FocusRing {
        controlRadius: Theme.radiusTile
        visible: tile.ringed
    }
    Column {
        anchors.centerIn: parent
        spacing: Theme.space16

        LeafShape {
            anchors.horizontalCenter: parent.horizontalCenter
            width: Theme.picker.addLeaf
            height: Theme.picker.addLeaf
            tip: Theme.glyphTip * Theme.picker.addLeaf
            color: tile.isLit ? Theme.raised : Theme.transparent
            borderWidth: Theme.picker.leafOutline
            borderColor: tile.isLit ? Theme.lit : Theme.controlBorder

            PathIcon {
                anchors.centerIn: parent
                symbol: "plus"
                weight: PathIcon.Light
                size: Theme.picker.addIcon
                color: tile.isLit ? Theme.lit : Theme.textSoft
            }
        }
        StyledText {
            look: Theme.type.confirmLabel
            text: tile.label
            color: tile.isLit ? Theme.text : Theme.textSoft
            Accessible.ignored: true
        }
    }
}
