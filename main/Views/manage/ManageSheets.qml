// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import Selvane

/// The sheets and questions of the management window. They cover all of it, one at a time.
Item {
    id: sheets

    required property AppModel app
    property ModalLayer current: null
    readonly property bool isOpen: current !== null
    readonly property bool covers: current !== null && current.isOpen ///< not while it fades

    function newProfile(source: string): void {
        sheets.open(newProfileSheet, {initialSource: source})
    }
    function importItems(target: string, component: string): void {
        sheets.open(importSheet, {target: target, component: component}, target)
    }
    function importSessions(target: string): void {
        sheets.open(sessionImportSheet, {target: target}, target)
    }
    function continueConversation(conversations: ConversationListModel, row: int): void {
        sheets.open(continuationSheet, {conversations: conversations, row: row})
    }
    function backUp(): void {
        sheets.open(backupSheet, {})
    }
    function tellAbout(version: string): void {
        sheets.open(aboutAlert, {title: qsTr("Selvane %1").arg(version)})
    }
    function askToDelete(profile: ProfileDetailModel): void {
        sheets.open(deleteAlert, {
            profile: profile,
            profileId: profile.profileId,
            title: qsTr("Spostare «%1» nel Cestino?").arg(profile.name)
        }, profile.profileId)
    }
    function askToReimport(profileId: string, component: ComponentModel): void {
        const title = qsTr("Reimportare da «%1»?").arg(component.sourceName)
        sheets.open(reimportAlert, {profileId, component, title}, profileId)
    }
    function askToRelink(profileId: string, component: ComponentModel): void {
        sheets.open(relinkAlert, {profileId, component, title: component.relinkQuestion}, profileId)
    }
    /// Shows the differences here only if the desktop has no program for that.
    function compare(profileId: string, component: ComponentModel, row: int): void {
        if (component.compare(row))
            return
        component.readDifference(row)
        sheets.open(differencesSheet, {component: component}, profileId)
    }
    /// `profileId` is what the sheet is about, if anything. One that fades is in nobody's way.
    function open(kind: Component, values: var, profileId = ""): void {
        if (sheets.covers)
            return
        if (sheets.current)
            sheets.drop()
        subject.begin(profileId)
        sheets.current = kind.createObject(sheets, values) as ModalLayer
    }
    /// For one that has faded. One that another has replaced meanwhile says so too, and must not take that along.
    function drop(): void {
        if (!sheets.current || sheets.covers)
            return
        sheets.current.destroy()
        sheets.current = null
    }

    SheetSubject {
        id: subject

        app: sheets.app
        isOver: !sheets.covers
        onGone: {
            sheets.current.cancel()
            sheets.open(goneAlert, {title: qsTr("«%1» non c'è più").arg(name)})
        }
    }
    Component {
        id: goneAlert

        AlertDialog {
            message: qsTr("Nel frattempo un altro programma ha tolto il profilo.")
            cancelText: ""
            onClosed: sheets.drop()
        }
    }
    Component {
        id: newProfileSheet

        NewProfileSheet {
            app: sheets.app
            onClosed: sheets.drop()
        }
    }
    Component {
        id: importSheet

        ImportSheet {
            app: sheets.app
            onClosed: sheets.drop()
        }
    }
    Component {
        id: sessionImportSheet

        SessionImportSheet {
            app: sheets.app
            onClosed: sheets.drop()
        }
    }
    Component {
        id: continuationSheet

        ContinuationSheet {
            app: sheets.app
            onClosed: sheets.drop()
        }
    }
    Component {
        id: backupSheet

        BackupSheet {
            app: sheets.app
            onRestoreAsked: {
                cancel()
                restoreForm.choose()
            }
            onClosed: sheets.drop()
        }
    }
    RestoreForm {
        id: restoreForm

        app: sheets.app
        onChecked: sheets.open(restoreSheet, {form: restoreForm})
    }
    Component {
        id: restoreSheet

        RestoreSheet {
            app: sheets.app
            onClosed: sheets.drop()
        }
    }
    Component {
        id: deleteAlert

        DeleteAlert {
            onClosed: sheets.drop()
        }
    }
    Component {
        id: aboutAlert

        AboutAlert {
            onClosed: sheets.drop()
        }
    }
    Component {
        id: reimportAlert

        AlertDialog {
            required property ComponentModel component
            required property string profileId

            message: qsTr("%1 di questo profilo verranno sostituiti con quelli della sorgente.").arg(component.title)
            confirmText: qsTr("Sovrascrivi")
            destructive: true
            onConfirmed: component.reimport(profileId)
            onClosed: sheets.drop()
        }
    }
    Component {
        id: relinkAlert

        AlertDialog {
            required property ComponentModel component
            required property string profileId

            message: component.relinkConsequence
            confirmText: qsTr("Unifica di nuovo")
            destructive: true
            onConfirmed: component.relinkAll(profileId)
            onClosed: sheets.drop()
        }
    }
    Component {
        id: differencesSheet

        DifferencesSheet {
            onClosed: sheets.drop()
        }
    }
}
