// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import Selvane

/// Asks what to back up.
Sheet {
    id: sheet

    required property AppModel app

    signal restoreAsked

    title: qsTr("Cosa salvare")
    confirmText: qsTr("Salva backup…")
    confirmEnabled: form.canSave
    plateWidth: Theme.sheets.backupWidth
    onConfirmed: form.submit()

    BackupForm {
        id: form

        app: sheet.app
    }
    StyledText {
        width: parent.width
        look: Theme.type.body
        text: qsTr("Creare profili non modifica il profilo Principale, ma puoi salvarlo prima per poterlo rimettere "
                   + "com'era. Cache, macchine virtuali e binari di Claude Code non vengono inclusi: Claude li "
                   + "riscarica da solo. Le istruzioni per ripristinare sono dentro l'archivio.")
        color: Theme.textSoft
        wrapMode: Text.Wrap
        Accessible.role: Accessible.StaticText
        Accessible.name: text
    }
    ListWell {
        width: parent.width
        height: scope.height

        Column {
            id: scope

            width: parent.width
            topPadding: Theme.space12
            bottomPadding: Theme.space12
            spacing: Theme.space12

            SwitchRow {
                x: Theme.space16
                width: parent.width - 2 * x
                text: qsTr("Profilo Principale")
                detail: qsTr("~/.claude, ~/.claude.json e i dati normali di Claude Desktop")
                checked: form.savesPrincipal
                onToggled: checked => form.savesPrincipal = checked
            }
            Rectangle {
                width: parent.width
                height: Theme.hairline
                color: Theme.separator
            }
            SwitchRow {
                x: Theme.space16
                width: parent.width - 2 * x
                text: qsTr("Profili di Selvane")
                detail: qsTr("~/.claude-profiles, con gli account dei profili")
                checked: form.savesProfiles
                onToggled: checked => form.savesProfiles = checked
            }
        }
    }
    GhostButton {
        size: GhostButton.Small
        symbol: "archivebox"
        text: qsTr("Ripristina…")
        help: qsTr("Ripristina quello che serve da un backup di Selvane")
        onClicked: sheet.restoreAsked()
    }
    IconNote {
        width: parent.width
        visible: form.claudeRuns
        symbol: "exclamationmark.triangle"
        look: Theme.type.control
        color: Theme.danger
        text: qsTr("Chiudi Claude prima del backup")
        Accessible.role: Accessible.AlertMessage
    }
}
