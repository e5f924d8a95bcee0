// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import Selvane

/// Tells that a profile has a Claude account of its own.
Row {
    spacing: Theme.space4

    PathIcon {
        anchors.verticalCenter: parent.verticalCenter
        symbol: "person.badge.key"
        weight: PathIcon.Bold
        size: Theme.iconCaret
        color: Theme.linked
    }
    StyledText {
        look: Theme.type.badge
        text: qsTr("Account Claude separato")
        color: Theme.linked
        Accessible.ignored: true
    }
}
