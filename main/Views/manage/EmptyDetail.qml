// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import Selvane

/// Shown instead of the detail while no profile is selected.
Item {
    id: detail

    Foliage {
        anchors.right: parent.right
        y: parent.height - Theme.manage.emptyFoliage
    }
    Column {
        anchors.centerIn: parent
        anchors.verticalCenterOffset: -Theme.manage.emptyRaised
        spacing: Theme.space24

        BrandMark {
            anchors.horizontalCenter: parent.horizontalCenter
            size: Theme.manage.emptyMark
        }
        StyledText {
            look: Theme.type.emptyTitle
            text: qsTr("Scegli un profilo")
            Accessible.role: Accessible.Heading
            Accessible.name: text
        }
    }
}
