// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import Selvane

/// What every control that is pressed does: mouse, Space and Return, the focus, the accessible name and the
/// help. It draws nothing.
Item {
    id: control

    property string label ///< accessible name
    property string help ///< shown beside the pointer after a moment
    property bool tabStop: true
    /// Return presses it too; a choice leaves Return to the sheet around it.
    property bool answersReturn: true
    /// A choice takes the focus when it is clicked; a command leaves it where it is.
    property bool takesFocusOnClick: false
    property bool hovered: area.containsMouse
    property bool pressed: area.pressed && area.containsMouse
    property bool ringed: activeFocus && Theme.showsFocus

    readonly property bool wantsHelp: help !== "" && !pressed && (hovered || ringed)
    property ToolTipBubble bubble: null

    signal clicked

    function press(): void {
        if (control.takesFocusOnClick)
            control.forceActiveFocus(Qt.MouseFocusReason)
        control.clicked()
    }

    // A Loader would do, but that of Qt 6.4 can't make bound components.
    onWantsHelpChanged: {
        if (bubble)
            bubble.destroy()
        bubble = wantsHelp ? bubbleComponent.createObject(control) as ToolTipBubble : null
    }

    activeFocusOnTab: tabStop

    Accessible.role: Accessible.Button
    Accessible.name: label
    Accessible.description: help
    Accessible.focusable: tabStop
    Accessible.pressed: pressed
    Accessible.onPressAction: control.clicked()

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

    Component {
        id: bubbleComponent

        ToolTipBubble {
            target: control
            text: control.help
        }
    }
}
