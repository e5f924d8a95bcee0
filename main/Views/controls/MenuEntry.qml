// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import Selvane

/// An entry of a menu. It lights up while it has the focus, and the pointer moves the focus.
Pressable {
    id: entry

    required property string text
    property string symbol
    property string icon ///< name of an icon, if there is no symbol
    property string explanation
    /// In a list of choices, a column is kept free for the mark of the chosen one.
    property bool choosable: false
    property bool chosen: false

    signal picked ///< comes before `triggered`, so that the menu can close
    signal triggered

    readonly property bool hasIcon: symbol !== "" || icon !== ""

    label: text
    tabStop: false
    implicitWidth: texts.x + Math.max(caption.implicitWidth, choosable ? 0 : note.implicitWidth) + Theme.space10
    implicitHeight: texts.implicitHeight + 2 * Theme.space8
    opacity: enabled ? 1 : Theme.disabledOpacity

    Accessible.role: Accessible.MenuItem
    Accessible.description: explanation
    Accessible.focusable: true
    Accessible.checked: chosen

    onClicked: {
        picked()
        triggered()
    }
    onHoveredChanged: {
        if (hovered)
            forceActiveFocus(Qt.MouseFocusReason)
    }

    Rectangle {
        anchors.fill: parent
        visible: entry.activeFocus
        radius: Theme.radiusControl
        color: Theme.separator
    }
    PathIcon {
        x: Theme.space10
        y: Theme.space8 + Math.round((caption.height - height) / 2)
        visible: entry.hasIcon || entry.chosen
        symbol: entry.symbol
        name: entry.choosable ? "check" : entry.icon
        size: entry.choosable ? Theme.iconSmall : Theme.iconControl
        color: entry.choosable ? Theme.lit : Theme.textSoft
    }
    Column {
        id: texts

        anchors.verticalCenter: parent.verticalCenter
        x: Theme.space10 + (entry.choosable ? Theme.iconSmall + Theme.space10
                            : entry.hasIcon ? Theme.iconControl + Theme.space10 : 0)
        width: entry.width - x - Theme.space10
        spacing: entry.choosable || !note.visible ? 0 : Theme.hairline

        StyledText {
            id: caption

            width: parent.width
            look: Theme.type.menuLabel
            text: entry.text
            elide: Text.ElideRight
        }
        StyledText {
            id: note

            width: parent.width
            visible: entry.explanation !== ""
            look: Theme.type.small
            text: entry.explanation
            color: Theme.textSoft
            wrapMode: Text.Wrap
        }
    }
}
