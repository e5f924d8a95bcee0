// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import Selvane

/// A profile, or below it an organisation of its account, in which a conversation can go on. It and the others to
/// choose from are one Tab stop; the arrow keys go round among them and choose.
Choice {
    id: row

    required property string text
    required property string note
    property string shortId
    property profileLook look ///< of a profile
    property bool isOpen: false
    property bool hasLine: false ///< at its foot
    required property Item group ///< with all to choose from somewhere below it

    readonly property bool isProfile: look.symbol !== ""
    readonly property real indent: isProfile ? Theme.space16 : Theme.sheets.organisationLeft

    signal chosen

    function rowsBelow(item: Item): var {
        let rows = []
        for (const child of Array.from(item.children)) {
            if (!(child instanceof ContinuationTarget))
                rows = rows.concat(rowsBelow(child))
            else if (child.isProfile === row.isProfile)
                rows.push(child)
        }
        return rows
    }
    function chooseFrom(step: int): void {
        const rows = rowsBelow(row.group)
        const next = rows[(rows.indexOf(row) + step + rows.length) % rows.length] as ContinuationTarget
        next.forceActiveFocus(Qt.TabFocusReason)
        next.chosen()
    }

    label: text
    tabStop: checked || activeFocus
    implicitHeight: isProfile ? Theme.controls.listRow : Theme.controls.height

    Accessible.role: Accessible.RadioButton
    Accessible.focusable: true
    Accessible.description: isOpen ? qsTr("Aperto") : note

    onClicked: chosen()
    Keys.onUpPressed: chooseFrom(-1)
    Keys.onDownPressed: chooseFrom(1)

    Rectangle {
        anchors.bottom: parent.bottom
        visible: row.hasLine
        width: parent.width
        height: Theme.hairline
        color: Theme.separator
    }
    Rectangle {
        id: knob

        anchors.verticalCenter: parent.verticalCenter
        x: row.indent
        width: Theme.controls.mark
        height: width
        radius: width / 2
        color: Theme.transparent
        border.width: row.checked ? Theme.controls.radioRing : Theme.hairline
        border.color: row.checked ? Theme.switchedOn : Theme.controlBorder

        FocusRing {
            controlRadius: knob.radius
            visible: row.ringed
        }
    }
    ProfileGlyph {
        id: glyph

        anchors { left: knob.right; leftMargin: Theme.space12; verticalCenter: parent.verticalCenter }
        visible: row.isProfile
        size: Theme.manage.conversationGlyph
        look: row.look
        isLit: row.checked
    }
    Row {
        anchors { left: glyph.visible ? glyph.right : knob.right; leftMargin: Theme.space12 }
        anchors { right: aside.left; rightMargin: Theme.space12; verticalCenter: parent.verticalCenter }
        spacing: Theme.space12

        StyledText {
            width: Math.min(implicitWidth, parent.width)
            look: Theme.type.control
            text: row.text
            elide: Text.ElideRight
        }
        StyledText {
            visible: row.shortId !== ""
            look: Theme.type.listPath
            text: row.shortId
            color: Theme.textFaint
        }
    }
    StyledText {
        id: aside

        anchors { right: parent.right; rightMargin: Theme.space16; verticalCenter: parent.verticalCenter }
        look: Theme.type.small
        text: row.isOpen ? qsTr("Aperto") : row.note
        color: row.isOpen ? Theme.opened : Theme.textFaint
    }
}
