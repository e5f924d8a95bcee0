// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import Selvane

/// One profile in the picker. The keyboard acts on the focused tile; the pointer can move the focus too.
Item {
    id: tile

    required property string name
    required property string summary
    required property profileLook look
    required property list<int> foundInName
    required property list<int> foundInSummary
    required property bool isActive
    required property bool isRunning
    required property bool hasOwnAccount
    required property string lastLaunch
    required property bool wasLaunched
    required property int index
    required property int count
    required property bool isFocused
    required property bool isLit ///< looks focused
    required property bool isCompact
    required property bool hasDigit ///< launches it

    readonly property int position: index + 1
    readonly property string status: isRunning ? qsTr("Aperto") : lastLaunch

    signal launched
    signal settingsAsked
    signal menuAsked(real x, real y)

    width: Theme.picker.tileWidth
    height: isCompact ? Theme.picker.tileHeightCompact : Theme.picker.tileHeight
    scale: isLit ? Theme.motion.focusedScale : 1
    z: isLit ? 1 : 0
    activeFocusOnTab: isFocused
    ListView.onPooled: {
        focus = false // before it is another one's
        visible = false // also to screen readers
    }
    ListView.onReused: {
        visible = true
        opacity = 1 // it may have faded out
    }

    Accessible.role: Accessible.Button
    Accessible.name: name
    Accessible.description: {
        const when = isActive ? qsTr("ultimo, %1").arg(status) : status
        const told = [qsTr("%1, profilo %2 di %3").arg(when).arg(position).arg(count)]
        if (tile.hasOwnAccount)
            told.push(qsTr("Account Claude separato"))
        if (tile.summary !== "")
            told.push(tile.summary)
        return told.join(", ")
    }
    Accessible.focusable: true
    Accessible.onPressAction: {
        if (tile.enabled)
            tile.launched()
    }

    Behavior on scale {
        NumberAnimation { duration: Theme.motion.tileFocus; easing.type: Easing.OutCubic }
    }

    Rectangle {
        anchors.fill: parent
        radius: Theme.radiusTile
        color: tile.isLit ? Theme.raised : Theme.surface
        border.width: tile.isLit ? Theme.thickLine : Theme.hairline
        border.color: tile.isLit ? Theme.lit : Theme.separator

        Behavior on color {
            ColorAnimation { duration: Theme.motion.tileFocus }
        }
    }
    MouseArea {
        id: area

        anchors.fill: parent
        hoverEnabled: true
        onClicked: tile.launched()
    }
    TapHandler {
        acceptedButtons: Qt.RightButton
        onTapped: point => tile.menuAsked(point.position.x, point.position.y)
    }
    TileLabel {
        anchors.fill: parent
        scale: area.pressed ? Theme.motion.pressedScale : 1
        name: tile.name
        summary: tile.summary
        look: tile.look
        foundInName: tile.foundInName
        foundInSummary: tile.foundInSummary
        status: tile.status
        isActive: tile.isActive
        position: tile.position
        isRunning: tile.isRunning
        wasLaunched: tile.wasLaunched
        hasOwnAccount: tile.hasOwnAccount
        isFocused: tile.isLit
        isCompact: tile.isCompact
        hasDigit: tile.hasDigit

        Behavior on scale {
            NumberAnimation { duration: Theme.motion.tilePress; easing.type: Easing.OutQuad }
        }
    }
    TileGear {
        anchors { right: parent.right; top: parent.top; margins: Theme.picker.tileGearMargin }
        help: qsTr("Impostazioni di «%1»").arg(tile.name)
        isOnFocusedTile: tile.isLit
        onClicked: tile.settingsAsked()
    }
}
