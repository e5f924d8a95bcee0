// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import Selvane

/// A field with a label above it, or with an icon inside instead.
FocusScope {
    id: field

    property string label ///< also the accessible name
    property bool showsLabel: true
    property string icon ///< name of an icon
    property alias text: input.text
    property alias placeholder: input.placeholder
    property bool ringed: input.activeFocus

    signal edited(string text)
    signal submitted

    implicitWidth: Theme.controls.fieldWidth
    implicitHeight: box.y + box.height

    StyledText {
        id: caption

        visible: field.showsLabel && text !== ""
        look: Theme.type.fieldLabel
        text: field.label
        color: Theme.textSoft
        Accessible.ignored: true
    }
    Rectangle {
        id: box

        y: caption.visible ? caption.height + Theme.controls.labelGap : 0
        width: field.width
        height: Theme.controls.largeHeight
        radius: Theme.radiusControl
        color: Theme.wellFill
        border.width: field.ringed ? Theme.thickLine : Theme.hairline
        border.color: field.ringed ? Theme.focusRing : Theme.controlBorder

        PathIcon {
            id: drawn

            visible: field.icon !== ""
            anchors.verticalCenter: parent.verticalCenter
            x: Theme.space12
            name: field.icon
            size: Theme.iconControl
            color: Theme.textSoft
        }
        FieldInput {
            id: input

            anchors.fill: parent
            anchors.leftMargin: drawn.visible ? drawn.x + drawn.width + Theme.space8 : Theme.space12 + Theme.hairline
            anchors.rightMargin: Theme.space12 + Theme.hairline
            focus: true
            label: field.label
            onTextEdited: field.edited(text)
            onAccepted: field.submitted()
        }
    }
}
