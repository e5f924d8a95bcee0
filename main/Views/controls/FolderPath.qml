// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import Selvane

/// A path on one line that can be selected and copied. Without the focus, it is shortened in the middle.
FocusScope {
    id: field

    required property string path

    implicitWidth: Math.ceil(shown.implicitWidth) + Theme.hairline
    implicitHeight: shown.implicitHeight

    StyledText {
        id: shown

        width: parent.width
        visible: !input.activeFocus
        look: Theme.type.path
        text: field.path
        color: Theme.textFaint
        elide: Text.ElideMiddle
        Accessible.ignored: true
    }
    TextInput {
        id: input

        anchors.fill: parent
        opacity: activeFocus ? 1 : 0
        focus: true
        activeFocusOnTab: true
        readOnly: true
        selectByMouse: true
        clip: true
        text: field.path
        font: shown.look.font
        color: Theme.text
        selectionColor: Theme.controlBorder
        selectedTextColor: Theme.text
        verticalAlignment: TextInput.AlignVCenter
        onActiveFocusChanged: {
            if (activeFocus && Theme.showsFocus)
                selectAll()
        }
        onTextChanged: deselect()

        Accessible.role: Accessible.EditableText
        Accessible.name: qsTr("Cartella del profilo")
        Accessible.readOnly: true
        Accessible.focusable: true
    }
    FocusRing {
        controlRadius: Theme.radiusSmall
        visible: input.activeFocus && Theme.showsFocus
    }
}
