// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import Selvane

/// Copies sessions of the Code tab from another profile.
Sheet {
    id: sheet

    required property AppModel app
    required property string target ///< id of the profile that gets them

    readonly property bool hasOthers: form.source !== ""

    title: qsTr("Sessioni del tab Code")
    confirmText: qsTr("Importa %1").arg(form.sessions.chosenCount)
    confirmEnabled: form.sessions.chosenCount > 0
    plateWidth: Theme.sheets.sessionImportWidth
    spacing: Theme.space12
    firstFocus: hasOthers ? search : null
    closesWhenDone: true
    onConfirmed: form.submit()

    SessionImportForm {
        id: form

        app: sheet.app
        target: sheet.target
        onSucceeded: sheet.close()
    }
    IconNote {
        width: parent.width
        visible: !sheet.hasOthers
        symbol: "leaf"
        text: qsTr("C'è solo questo profilo: per importare sessioni da un altro, prima creane uno.")
    }
    Row {
        id: inputs

        width: parent.width
        visible: sheet.hasOthers
        spacing: Theme.space12

        ProfileDropDown {
            id: source

            width: Theme.sheets.sessionSourceWidth
            label: qsTr("Profilo")
            app: sheet.app
            except: sheet.target
            profileId: form.source
            onPicked: profileId => form.source = profileId
        }
        TextInputField {
            id: search

            width: parent.width - source.width - parent.spacing
            label: qsTr("Cerca")
            showsLabel: false
            icon: "magnifying-glass"
            placeholder: qsTr("Titolo o cartella")
            text: form.sessions.search
            onEdited: text => form.sessions.search = text
        }
    }
    Column {
        width: parent.width
        visible: sheet.hasOthers
        spacing: Theme.space4

        Item {
            id: count

            width: parent.width
            height: links.height

            StyledText {
                anchors.verticalCenter: parent.verticalCenter
                look: Theme.type.small
                text: (form.sessions.chosenCount === 1 ? qsTr("%1 di %2 selezionata") : qsTr("%1 di %2 selezionate"))
                      .arg(form.sessions.chosenCount).arg(form.sessions.total)
                color: Theme.textSoft
                Accessible.role: Accessible.StaticText
                Accessible.name: text
            }
            ChoiceLinks {
                id: links

                anchors.right: parent.right
                choices: form.sessions
                allText: qsTr("Tutte")
                noneText: qsTr("Nessuna")
            }
        }
        ChecklistWell {
            width: parent.width
            wantedHeight: Theme.sheets.sessionListHeight
            room: sheet.bodyRoom - inputs.height - count.height - note.height - 2 * sheet.spacing - Theme.space4
            rowHeight: Theme.controls.pathRow
            choices: form.sessions
            label: sheet.title
            emptyText: form.isLoading ? qsTr("Lettura delle sessioni…") : qsTr("Nessuna sessione")
        }
    }
    StyledText {
        id: note

        width: parent.width
        visible: sheet.hasOthers
        look: Theme.type.small
        text: qsTr("Vengono copiate le conversazioni e la voce nell'elenco di Claude.")
        color: Theme.textSoft
        wrapMode: Text.Wrap
        Accessible.role: Accessible.StaticText
        Accessible.name: text
    }
}
