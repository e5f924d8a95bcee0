// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import Selvane

/// Isolates the profile from the built-in one's rules.
Card {
    id: section

    required property ProfileDetailModel profile

    implicitHeight: choice.y + choice.height + Theme.manage.cardTop

    Accessible.role: Accessible.Grouping
    Accessible.name: heading.text

    PathIcon {
        anchors.verticalCenter: heading.verticalCenter
        x: Theme.space16
        symbol: "shield"
        size: Theme.iconAlone
        color: Theme.textSoft
    }
    SectionTitle {
        id: heading

        x: Theme.manage.itemTextLeft
        y: Theme.space12
        width: section.width - x - Theme.space16
        text: qsTr("Isolamento")
    }
    IsolationSwitch {
        id: choice

        x: Theme.manage.itemTextLeft
        y: heading.y + heading.height + Theme.space6
        width: section.width - x - Theme.space16
        builtInName: section.profile.builtInName
        checked: section.profile.isIsolated
        onToggled: checked => section.profile.setIsolated(checked)
    }
}
