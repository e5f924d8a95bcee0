// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import Selvane

/// A field that looks like a title with a line below. Return submits the text and then shows the current
/// `value`. Escape restores `value`, and so does a change of `subject`, the thing it belongs to.
FocusScope {
    id: field

    required property string label
    required property string value
    property string subject
    property alias look: input.look
    property alias placeholder: input.placeholder
    property bool ringed: input.activeFocus

    signal submitted(string text)

    implicitWidth: Theme.controls.fieldWidth
    implicitHeight: caption.height + input.height + Theme.space4

    function reset(): void {
        input.text = field.value
    }

    onValueChanged: reset()
    onSubjectChanged: reset()

    StyledText {
        id: caption

        look: Theme.type.headerLabel
        text: field.label
        color: Theme.textFaint
        Accessible.ignored: true
    }
    FieldInput {
        id: input

        anchors.top: caption.bottom
        width: field.width
        height: look.lineHeight
        focus: true
        text: field.value
        label: field.label
        onAccepted: {
            field.submitted(text)
            field.reset()
        }
        Keys.onEscapePressed: event => {
            event.accepted = text !== field.value
            field.reset()
        }
    }
    Rectangle {
        anchors.bottom: parent.bottom
        width: field.width
        height: field.ringed ? Theme.thickLine : Theme.hairline
        color: field.ringed ? Theme.focusRing : Theme.controlBorder
    }
}
