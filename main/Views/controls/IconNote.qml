// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import Selvane

/// A sentence with an icon before it.
Item {
    id: note

    required property string symbol
    required property string text
    property TextStyle look: Theme.type.body
    property color color: Theme.textSoft

    implicitWidth: caption.x + caption.implicitWidth
    implicitHeight: caption.height

    Accessible.role: Accessible.StaticText
    Accessible.name: text

    PathIcon {
        id: icon

        y: Math.round((note.look.lineHeight - height) / 2)
        symbol: note.symbol
        size: Theme.iconAlone
        color: note.color
    }
    StyledText {
        id: caption

        x: icon.width + Theme.space10
        width: note.width - x
        look: note.look
        text: note.text
        color: note.color
        wrapMode: Text.Wrap
        Accessible.ignored: true
    }
}
