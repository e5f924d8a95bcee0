// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import Selvane

/// The mark, the name and the tagline.
Row {
    spacing: Theme.space12

    Accessible.role: Accessible.StaticText
    Accessible.name: Theme.brand.name
    Accessible.description: tagline.text

    BrandMark {
        anchors.verticalCenter: parent.verticalCenter
        size: Theme.controls.lockupMark
    }
    Column {
        anchors.verticalCenter: parent.verticalCenter

        StyledText {
            look: Theme.type.wordmark
            text: Theme.brand.name
            Accessible.ignored: true
        }
        StyledText {
            id: tagline

            look: Theme.type.tagline
            text: qsTr("I tuoi profili, fianco a fianco")
            color: Theme.textSoft
            Accessible.ignored: true
        }
    }
}
