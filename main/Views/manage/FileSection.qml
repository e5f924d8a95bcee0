// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import Selvane

/// A component that is a single file: its state and its commands.
Card {
    id: section

    required property ComponentModel component

    readonly property bool isChanged: component.changed !== ""

    signal reimportAsked
    signal relinkAsked
    signal compareAsked
    signal menuAsked(Item opener)

    readonly property bool isOpen: component.isOpen
    readonly property real rowHeight: Math.max(buttons.height, description.height)

    implicitHeight: isOpen ? buttons.y + rowHeight + Theme.space12 : header.height + Theme.hairline

    Accessible.role: Accessible.Grouping
    Accessible.name: component.title

    SectionHeader {
        id: header

        width: parent.width
        component: section.component
        note: section.isOpen ? "" : section.component.description
        onRelinkAsked: section.relinkAsked()
        onOpenAsked: open => section.component.isOpen = open
    }
    PathIcon {
        anchors.verticalCenter: description.verticalCenter
        x: Theme.manage.itemIconLeft
        visible: section.isChanged && section.isOpen
        symbol: "exclamationmark.triangle"
        size: Theme.iconControl
        color: Theme.lit
    }
    Row {
        id: description

        x: Theme.manage.itemTextLeft
        y: buttons.y + (section.rowHeight - height) / 2
        visible: section.isOpen

        Accessible.role: Accessible.StaticText
        Accessible.name: section.component.description

        StyledText {
            id: words

            readonly property string target: section.component.linkTarget

            width: Math.min(implicitWidth, buttons.x - description.x - Theme.space12)
            look: Theme.type.small
            text: section.component.description.slice(0, section.component.description.length - target.length)
            color: Theme.textSoft
            wrapMode: Text.Wrap
            Accessible.ignored: true
        }
        StyledText {
            anchors.verticalCenter: parent.verticalCenter
            width: Math.min(implicitWidth, buttons.x - description.x - words.width - Theme.space12)
            look: Theme.type.listPath
            text: words.target
            color: Theme.textFaint
            elide: Text.ElideMiddle
            Accessible.ignored: true
        }
    }
    Row {
        id: buttons

        anchors { right: parent.right; rightMargin: Theme.space12 }
        y: header.height - Theme.space4
        visible: section.isOpen
        spacing: Theme.space8

        GhostButton {
            visible: section.isChanged
            size: GhostButton.Small
            text: qsTr("Confronta")
            onClicked: section.compareAsked()
        }
        GhostButton {
            visible: !section.isChanged
            size: GhostButton.Small
            text: qsTr("Mostra")
            onClicked: section.component.reveal()
        }
        GhostButton {
            visible: text !== ""
            size: GhostButton.Small
            text: section.component.openLabel
            onClicked: section.component.open()
        }
        GhostButton {
            visible: section.component.canReimport
            size: GhostButton.Small
            text: qsTr("Reimporta")
            help: qsTr("Copia di nuovo da %1").arg(section.component.sourceName)
            onClicked: section.reimportAsked()
        }
        GhostButton {
            id: more

            visible: section.isChanged
            bare: true
            size: GhostButton.Small
            symbol: "ellipsis.circle"
            label: qsTr("Azioni per «%1»").arg(section.component.title)
            onClicked: section.menuAsked(more)
        }
    }
}
