// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import Selvane

/// Creates a profile, empty or from another one.
Sheet {
    id: sheet

    required property AppModel app
    property string initialSource ///< id of the profile to start from; empty for none

    title: qsTr("Nuovo profilo")
    confirmText: qsTr("Crea profilo")
    confirmEnabled: form.canCreate
    plateWidth: Theme.sheets.newProfileWidth
    spacing: Theme.space24
    firstFocus: nameField
    closesWhenDone: true
    onConfirmed: form.create()

    NewProfileForm {
        id: form

        app: sheet.app
        source: sheet.initialSource
        onSucceeded: sheet.close()
    }
    Column {
        width: parent.width
        spacing: Theme.space16

        Row {
            id: texts

            readonly property real half: Math.floor((width - spacing) / 2)

            width: parent.width
            spacing: Theme.space16

            TextInputField {
                id: nameField

                width: texts.half
                label: qsTr("Nome")
                placeholder: qsTr("es. Lavoro, Cliente X, Privato")
                text: form.name
                onEdited: text => form.name = text
            }
            TextInputField {
                width: texts.half
                label: qsTr("Descrizione")
                placeholder: qsTr("Facoltativa")
                text: form.summary
                onEdited: text => form.summary = text
            }
        }
        FieldGroup {
            width: parent.width
            label: qsTr("Icona")

            LookChooser {
                width: parent.width
                look: form.look
                picksOnMove: true
                onPicked: look => form.look = look
            }
        }
        FieldGroup {
            width: parent.width
            label: qsTr("Parti da")

            ProfileDropDown {
                width: parent.width
                label: qsTr("Parti da")
                app: sheet.app
                noneLabel: qsTr("Profilo vuoto")
                profileId: form.source
                onPicked: profileId => form.source = profileId
            }
        }
        IconNote {
            width: parent.width
            visible: form.source === ""
            symbol: "leaf"
            text: qsTr("Il profilo parte senza skill né regole.")
        }
    }
    AccountChoice {
        width: parent.width
        visible: form.source !== ""
        form: form
    }
    IsolationChoice {
        width: parent.width
        form: form
    }
    ComponentChoices {
        width: parent.width
        visible: form.source !== ""
        form: form
    }
}
