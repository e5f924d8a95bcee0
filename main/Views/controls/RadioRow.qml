// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import Selvane

/// One of a few choices: its text, perhaps followed by a symbol, and an explanation below. Those with the
/// same parent are one Tab stop; the arrow keys go round among them and choose.
Choice {
    id: row

    required property string text
    property string detail
    property string symbol
    readonly property real textLeft: texts.x
    readonly property real symbolWidth: symbol !== "" ? Theme.space8 + Theme.iconSmall : 0

    signal chosen

    function chooseFrom(step: int): void {
        const isChoice = item => item instanceof RadioRow && item.visible && item.enabled
        const rows = Array.from(row.parent.children).filter(isChoice)
        const next = rows[(rows.indexOf(row) + step + rows.length) % rows.length] as RadioRow
        next.forceActiveFocus(Qt.TabFocusReason)
        next.chosen()
    }

    label: text
    tabStop: checked || activeFocus
    implicitWidth: texts.x + Math.ceil(Math.max(caption.implicitWidth + symbolWidth, explanation.implicitWidth))
    implicitHeight: Math.max(Theme.controls.rowTarget, texts.implicitHeight)

    Accessible.role: Accessible.RadioButton
    Accessible.focusable: true
    Accessible.description: detail

    onClicked: chosen()
    Keys.onUpPressed: chooseFrom(-1)
    Keys.onLeftPressed: chooseFrom(-1)
    Keys.onDownPressed: chooseFrom(1)
    Keys.onRightPressed: chooseFrom(1)

    Rectangle {
        id: knob

        y: Math.round((heading.height - height) / 2) + texts.y
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
    Column {
        id: texts

        x: knob.width + Theme.space10
        y: row.detail !== "" ? 0 : Math.round((row.height - height) / 2)
        width: row.width - x
        spacing: Theme.space4

        Row {
            id: heading

            spacing: Theme.space8

            StyledText {
                id: caption

                width: Math.min(implicitWidth, texts.width - row.symbolWidth)
                look: Theme.type.control
                text: row.text
                elide: Text.ElideRight
            }
            PathIcon {
                anchors.verticalCenter: parent.verticalCenter
                visible: row.symbol !== ""
                symbol: row.symbol
                size: Theme.iconSmall
                weight: PathIcon.Regular
                color: Theme.textSoft
            }
        }
        StyledText {
            id: explanation

            width: parent.width
            visible: row.detail !== ""
            look: Theme.type.small
            text: row.detail
            color: Theme.textSoft
            wrapMode: Text.Wrap
        }
    }
}
