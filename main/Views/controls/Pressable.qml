// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import Selvane

/// Common behaviour of all controls that can be pressed: mouse, Space and Return, focus, accessible name and
/// help. It draws nothing.
Item {
    id: control

    property string label ///< accessible name
    property string help ///< shown beside the control after a moment
    property bool tabStop: true
    property bool available: true ///< what lies behind a sheet can't be pressed either, but doesn't look it
    /// Whether Return presses it too; a choice leaves Return to the sheet around it.
    property bool answersReturn: true
    /// Whether a click gives it the focus: yes for a choice, no for a command.
    property bool takesFocusOnClick: false
    property bool hovered: area.containsMouse
    property bool pressed: area.pressed && area.containsMouse
    property bool ringed: activeFocus && Theme.showsFocus

    readonly property bool wantsHelp: help !== "" && !pressed && (hovered || ringed)
    property Item bubble: null ///< a ToolTipBubble, which isn't even loaded before one first shows

    signal clicked

    function press(): void {
        if (control.takesFocusOnClick)
            control.forceActiveFocus(Qt.MouseFocusReason)
        control.clicked()
    }

    onWantsHelpChanged: {
        control.bubble?.destroy()
        control.bubble = !wantsHelp ? null : Qt.createComponent("ToolTipBubble.qml").createObject(control, {
            target: control, text: Qt.binding(() => control.help)
        }) as Item
    }

    activeFocusOnTab: tabStop
    enabled: available

    Accessible.role: Accessible.Button
    Accessible.name: label
    Accessible.description: help
    Accessible.focusable: tabStop && enabled
    Accessible.pressed: pressed
    Accessible.onPressAction: {
        if (control.enabled)
            control.clicked()
    }

    Keys.onPressed: event => {
        const isSpace = event.key === Qt.Key_Space
        const isReturn = event.key === Qt.Key_Return || event.key === Qt.Key_Enter
        const isPlain = (event.modifiers & ~Qt.KeypadModifier) === Qt.NoModifier
        event.accepted = isPlain && (isSpace || isReturn && control.answersReturn)
        if (event.accepted && !event.isAutoRepeat)
            control.clicked()
    }

    MouseArea {
        id: area

        anchors.fill: parent
        hoverEnabled: true
        onClicked: control.press()
    }
}
