// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import Selvane

/// The top of a component's section: its icon and title, and how the profile takes it from its source.
Item {
    id: header

    required property ComponentModel component
    property string note

    signal relinkAsked

    /// Where title and note must end.
    readonly property real end: (mark.visible ? mark.x : mode.x) - Theme.space12

    PathIcon {
        anchors.verticalCenter: parent.verticalCenter
        x: Theme.space16
        symbol: header.component.symbol
        size: Theme.iconAlone
        color: Theme.textSoft
    }
    SectionTitle {
        id: heading

        anchors.verticalCenter: parent.verticalCenter
        x: Theme.manage.itemTextLeft
        width: Math.min(implicitWidth, header.end - x)
        text: header.component.title
    }
    StyledText {
        anchors.verticalCenter: parent.verticalCenter
        x: heading.x + heading.width + Theme.space12
        width: header.end - x
        visible: header.note !== "" && width > 0
        look: Theme.type.small
        text: header.note
        color: Theme.textFaint
        elide: Text.ElideRight
        Accessible.role: Accessible.StaticText
        Accessible.name: text
    }
    ChangedMark {
        id: mark

        anchors.verticalCenter: parent.verticalCenter
        x: mode.x - width - Theme.space16
        component: header.component
        onRelinkAsked: header.relinkAsked()
    }
    DropDown {
        id: mode

        anchors.verticalCenter: parent.verticalCenter
        x: header.component.hasModes ? header.width - width - Theme.space12 : header.width
        visible: header.component.hasModes
        size: DropDown.Small
        label: header.component.title
        labels: header.component.modes
        explanations: header.component.modeExplanations
        currentIndex: header.component.modeIndex
        onChosen: index => header.component.setMode(index)
    }
}
