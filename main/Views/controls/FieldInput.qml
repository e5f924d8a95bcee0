// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import Selvane

/// The text line inside a field: colours, cursor and placeholder. A text that is too long shows its beginning
/// unless it is being edited.
TextInput {
    id: input

    property TextStyle look: Theme.type.field
    property string label ///< accessible name
    property string placeholder

    activeFocusOnTab: true
    selectByMouse: true
    clip: true
    font: look.font
    color: Theme.text
    selectionColor: Theme.controlBorder
    selectedTextColor: Theme.text
    verticalAlignment: TextInput.AlignVCenter
    cursorDelegate: Rectangle {
        visible: input.cursorVisible
        width: Theme.hairline
        color: Theme.lit
    }

    onTextChanged: {
        if (!activeFocus)
            cursorPosition = 0
    }
    onActiveFocusChanged: cursorPosition = activeFocus ? text.length : 0

    Accessible.role: Accessible.EditableText
    Accessible.name: label
    Accessible.description: placeholder
    Accessible.focusable: true

    StyledText {
        anchors.fill: parent
        visible: input.text === "" && input.preeditText === ""
        look: input.look
        text: input.placeholder
        color: Theme.textFaint
        elide: Text.ElideRight
        Accessible.ignored: true
    }
}
