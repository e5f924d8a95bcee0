// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import Selvane

/// Adds items of one component from another profile.
Sheet {
    id: sheet

    required property AppModel app
    required property string target ///< id of the profile that gets them
    required property string component ///< raw value

    readonly property bool hasOthers: form.source !== ""

    title: qsTr("Aggiungi da un altro profilo")
    confirmText: qsTr("Aggiungi %1").arg(form.items.chosenCount)
    confirmEnabled: form.items.chosenCount > 0
    plateWidth: Theme.sheets.importWidth
    spacing: Theme.space20
    firstFocus: items.focusTarget
    closesWhenDone: true
    onConfirmed: form.submit()

    ImportForm {
        id: form

        app: sheet.app
        target: sheet.target
        component: sheet.component
        onSucceeded: sheet.close()
    }
    IconNote {
        width: parent.width
        visible: !sheet.hasOthers
        symbol: "leaf"
        text: qsTr("C'è solo questo profilo: per prendere elementi da un altro, prima creane uno.")
    }
    ProfileDropDown {
        id: source

        width: parent.width
        visible: sheet.hasOthers
        label: qsTr("Profilo")
        app: sheet.app
        except: sheet.target
        profileId: form.source
        onPicked: profileId => form.source = profileId
    }
    Column {
        width: parent.width
        visible: sheet.hasOthers
        spacing: Theme.sheets.titleGap

        SectionTitle {
            id: heading

            width: parent.width
            text: form.heading
        }
        ChecklistWell {
            id: items

            width: parent.width
            wantedHeight: isEmpty ? 2 * rowHeight : Math.min(contentHeight, Theme.sheets.importRows * rowHeight)
            room: sheet.bodyRoom - source.height - heading.height - way.height - 2 * sheet.spacing
                  - Theme.sheets.titleGap
            choices: form.items
            label: form.heading
            emptyText: form.isLoading ? qsTr("Lettura degli elementi…") : qsTr("Niente da aggiungere")
        }
    }
    Column {
        id: way

        width: parent.width
        visible: sheet.hasOthers
        spacing: Theme.space4

        SectionTitle {
            width: parent.width
            text: qsTr("Come")
        }
        Flow {
            width: parent.width
            spacing: Theme.space24

            Accessible.role: Accessible.Grouping
            Accessible.name: qsTr("Come")

            RadioRow {
                text: qsTr("Unificato (collegamento)")
                checked: form.links
                onChosen: form.links = true
            }
            RadioRow {
                text: qsTr("Separato (copia)")
                checked: !form.links
                onChosen: form.links = false
            }
        }
    }
}
