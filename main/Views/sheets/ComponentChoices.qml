// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import Selvane

/// What a new profile takes from its source, component by component.
Column {
    id: section

    required property NewProfileForm form

    spacing: Theme.sheets.titleGap

    SectionTitle {
        width: parent.width
        text: qsTr("Cosa portare da «%1»").arg(section.form.sourceName)
    }
    Row {
        spacing: Theme.space8

        StyledText {
            anchors.verticalCenter: parent.verticalCenter
            look: Theme.type.small
            text: qsTr("Imposta tutto:")
            rightPadding: Theme.space4
            Accessible.ignored: true
        }
        GhostButton {
            size: GhostButton.Small
            text: qsTr("Unificato")
            label: qsTr("Imposta tutto: Unificato")
            onClicked: section.form.shareAll()
        }
        GhostButton {
            size: GhostButton.Small
            text: qsTr("Separato")
            label: qsTr("Imposta tutto: Separato")
            onClicked: section.form.separateAll()
        }
    }
    StyledText {
        width: parent.width
        look: Theme.type.small
        text: qsTr("Unificato: il profilo usa gli stessi elementi della sorgente (modifiche condivise, i nuovi "
                   + "arrivano in automatico). Separato: ne riceve una copia indipendente.")
        color: Theme.textSoft
        wrapMode: Text.Wrap
        Accessible.role: Accessible.StaticText
        Accessible.name: text
    }
    Column {
        width: parent.width

        Repeater {
            model: section.form

            delegate: ComponentChoiceRow {
                required property int index

                width: section.width
                expanded: index === 0
                onModeChosen: modeIndex => section.form.setMode(index, modeIndex)
            }
        }
    }
}
