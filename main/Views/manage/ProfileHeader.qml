// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import Selvane

/// The top of the detail: the profile's symbol, name, description and folder, and the launch button.
Item {
    id: header

    required property AppModel app
    required property ProfileDetailModel profile
    required property bool isNarrow
    required property bool answersShortcut

    signal launched
    signal synced

    implicitHeight: isNarrow ? actions.y + actions.height + Theme.space8 : place.y + place.height + Theme.space4

    GlyphButton {
        id: glyph

        y: header.isNarrow ? Theme.manage.glyphTopNarrow : Math.round((fields.height - height) / 2)
        size: header.isNarrow ? Theme.manage.glyphNarrow : Theme.manage.glyph
        look: header.profile.look
        onPicked: look => header.profile.setLook(look)
    }
    Column {
        id: fields

        x: glyph.width + Theme.space20
        width: (header.isNarrow ? header.width : actions.x - Theme.space20) - x
        spacing: Theme.space12

        HeaderField {
            width: parent.width
            look: Theme.type.nameField
            label: qsTr("Nome")
            value: header.profile.name
            subject: header.profile.profileId
            onSubmitted: text => header.profile.setName(text)
        }
        HeaderField {
            width: parent.width
            look: Theme.type.field
            label: qsTr("Descrizione")
            placeholder: qsTr("Aggiungi una descrizione")
            value: header.profile.summary
            subject: header.profile.profileId
            onSubmitted: text => header.profile.setSummary(text)
        }
    }
    Item {
        id: place

        y: fields.height + Theme.space16
        width: header.width
        height: facts.y + facts.height

        Row {
            id: source

            readonly property real taken: visible ? width + Theme.space16 : 0

            visible: header.profile.hasSource
            spacing: Theme.space6

            PathIcon {
                anchors.verticalCenter: parent.verticalCenter
                symbol: "arrow.triangle.branch"
                size: Theme.iconSmall
                weight: PathIcon.Regular
                color: Theme.linked
            }
            StyledText {
                look: Theme.type.smallControl
                text: qsTr("eredita da «%1»").arg(header.profile.sourceName)
                color: Theme.linked
                width: Math.min(implicitWidth, header.width / 2)
                elide: Text.ElideRight
                Accessible.role: Accessible.StaticText
                Accessible.name: text
            }
        }
        FolderPath {
            id: path

            x: source.taken
            width: Math.min(implicitWidth, parent.width - x)
            path: header.profile.folder
        }
        FactsLine {
            id: facts

            y: path.height + Theme.space8
            width: parent.width
            app: header.app
        }
    }
    Grid {
        id: actions

        x: header.isNarrow ? 0 : header.width - width
        y: header.isNarrow ? place.y + place.height + Theme.space16 : Math.round((fields.height - height) / 2)
        columns: header.isNarrow ? 2 : 1
        spacing: header.isNarrow ? Theme.space12 : Theme.space8

        LaunchButton {
            id: launch

            text: header.profile.isRunning ? qsTr("Mostra Claude  →") : qsTr("Avvia Claude  →")
            help: Theme.keyText(header.profile.isRunning ? qsTr("Mostra Claude (⌘↩)") : qsTr("Avvia Claude (⌘↩)"))
            onClicked: header.launched()
        }
        GhostButton {
            visible: header.profile.hasSource
            width: header.isNarrow ? implicitWidth : Math.max(implicitWidth, launch.width)
            height: header.isNarrow ? launch.height : implicitHeight
            text: qsTr("Sincronizza")
            symbol: "arrow.triangle.2.circlepath"
            help: qsTr("Collega i nuovi elementi della sorgente nei componenti unificati")
            onClicked: header.synced()
        }
    }
    Shortcut {
        sequences: ["Ctrl+Return", "Ctrl+Enter"]
        enabled: header.answersShortcut
        onActivated: header.launched()
    }
}
