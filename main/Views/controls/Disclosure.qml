// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import Selvane

/// A line that shows or hides what is below it.
Pressable {
    id: disclosure

    required property string text
    required property bool expanded
    property bool expandable: true ///< otherwise it is just a line of text

    signal toggled(bool expanded)

    label: text
    tabStop: expandable
    available: expandable
    implicitWidth: caret.width + caption.anchors.leftMargin + caption.implicitWidth
    implicitHeight: Theme.controls.rowTarget

    Accessible.role: expandable ? Accessible.Button : Accessible.StaticText
    Accessible.description: !expandable ? "" : expanded ? qsTr("aperto") : qsTr("chiuso")

    onClicked: toggled(!expanded)

    PathIcon {
        id: caret

        anchors.verticalCenter: parent.verticalCenter
        width: Theme.iconCaret
        visible: disclosure.expandable
        name: disclosure.expanded ? "caret-down" : "caret-right"
        size: Theme.iconCaret
        color: disclosure.hovered ? Theme.text : Theme.textSoft
    }
    StyledText {
        id: caption

        anchors.verticalCenter: parent.verticalCenter
        anchors.left: disclosure.expandable ? caret.right : parent.left
        anchors.leftMargin: disclosure.expandable ? Theme.space4 : 0
        look: Theme.type.small
        text: disclosure.text
        color: disclosure.hovered ? Theme.text : Theme.textSoft
    }
    FocusRing {
        controlRadius: Theme.radiusSmall
        visible: disclosure.ringed
    }
}
