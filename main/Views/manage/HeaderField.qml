// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import Selvane

/// A field that looks like a title with a line below. Return submits the text, and so does leaving the field;
/// then it shows the current `value`, and for a moment that it was saved if that has changed. Escape restores
/// `value`, and so does a change of `subject`, the thing it belongs to. A `value` that changes while another
/// text is being typed leaves that alone.
FocusScope {
    id: field

    required property string label
    required property string value
    property string subject
    property alias look: input.look
    property alias placeholder: input.placeholder
    property bool ringed: input.activeFocus

    readonly property bool saysSaved: savedTimer.running
    readonly property bool isWindowShown: Window.visibility !== Window.Hidden

    signal submitted(string text)

    implicitWidth: Theme.controls.fieldWidth
    implicitHeight: caption.height + input.height + Theme.space4

    function reset(): void {
        input.text = field.value
        input.isEdited = false
    }
    function submit(): void {
        const before = field.value
        if (input.text !== before)
            field.submitted(input.text)
        field.reset()
        if (field.value !== before)
            savedTimer.restart()
    }

    onValueChanged: {
        if (!input.isEdited)
            reset()
    }
    onSubjectChanged: {
        reset()
        savedTimer.stop()
    }
    onIsWindowShownChanged: submit()

    StyledText {
        id: caption

        look: Theme.type.headerLabel
        text: field.label
        color: Theme.textFaint
        Accessible.ignored: true
    }
    Row {
        anchors { right: parent.right; verticalCenter: caption.verticalCenter }
        spacing: Theme.space4
        opacity: field.saysSaved ? 1 : 0
        visible: opacity > 0

        Accessible.role: Accessible.AlertMessage
        Accessible.name: saved.text

        Behavior on opacity {
            NumberAnimation { duration: field.saysSaved ? Theme.motion.savedIn : Theme.motion.savedOut }
        }

        PathIcon {
            anchors.verticalCenter: parent.verticalCenter
            name: "check"
            size: Theme.iconCaret
            weight: PathIcon.Bold
            color: Theme.linked
        }
        StyledText {
            id: saved

            look: Theme.type.headerLabel
            text: qsTr("Salvato")
            color: Theme.textSoft
            Accessible.ignored: true
        }
    }
    Timer {
        id: savedTimer

        interval: Theme.motion.savedDuration
    }
    FieldInput {
        id: input

        property bool isEdited: false

        anchors.top: caption.bottom
        width: field.width
        height: look.lineHeight
        focus: true
        text: field.value
        label: field.label
        onTextEdited: isEdited = true
        onAccepted: field.submit()
        onActiveFocusChanged: {
            if (!activeFocus)
                field.submit()
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
