// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import Selvane

/// What is typed in the picker, in the place of the subtitle, and a word where the tiles were if it finds none.
Item {
    id: finder

    required property SearchText search
    required property ProfileListModel profiles
    required property real indent
    required property real capsuleTop
    required property real tilesTop

    anchors.fill: parent
    visible: search.text !== ""

    SearchCapsule {
        id: capsule

        x: finder.indent
        y: finder.capsuleTop
        width: Math.min(Theme.picker.capsule, finder.width - 2 * finder.indent)
        text: finder.search.text
        count: finder.profiles.countText
        onCleared: finder.search.clear()
        onCountChanged: {
            if (finder.visible)
                Announcer.announce(capsule, count)
        }
    }
    StyledText {
        x: finder.indent
        y: finder.tilesTop
        width: finder.width - 2 * x
        visible: finder.profiles.count === 0
        look: Theme.type.subtitle
        text: qsTr("Nessun profilo con «%1»").arg(finder.search.text)
        color: Theme.textSoft
        elide: Text.ElideRight
        Accessible.role: Accessible.StaticText
        Accessible.name: text
    }
}
