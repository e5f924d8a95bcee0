// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import Selvane

/// Asks which parts of a checked archive to restore.
Sheet {
    id: sheet

    required property AppModel app
    required property RestoreForm form

    title: qsTr("Ripristina da un archivio")
    confirmText: qsTr("Ripristina")
    confirmEnabled: form.canRestore
    extraText: qsTr("Prova soltanto")
    extraEnabled: form.parts.chosenCount > 0
    remark: form.trashed
    plateWidth: Theme.sheets.restoreWidth
    spacing: Theme.space12
    closesWhenDone: true
    onConfirmed: form.submit()
    onExtraAsked: form.tryOnly()

    Connections {
        target: sheet.form

        function onSucceeded(): void {
            sheet.close()
        }
    }
    Timer {
        interval: Theme.motion.lookAgain
        running: sheet.form.claudeRuns
        repeat: true
        onTriggered: sheet.form.lookForClaude() // nobody tells when an agent in a terminal ends
    }
    Item {
        width: parent.width
        height: Theme.controls.listRow

        PathIcon {
            id: icon

            anchors.verticalCenter: parent.verticalCenter
            symbol: "archivebox"
            size: Theme.manage.profileGlyph
            color: Theme.textSoft
        }
        Column {
            anchors { left: icon.right; leftMargin: Theme.space12; right: change.left; rightMargin: Theme.space12 }
            anchors.verticalCenter: parent.verticalCenter

            StyledText {
                width: parent.width
                look: Theme.type.path
                text: sheet.form.fileName
                elide: Text.ElideMiddle
                Accessible.role: Accessible.StaticText
                Accessible.name: text
            }
            StyledText {
                width: parent.width
                look: Theme.type.small
                text: sheet.form.facts
                color: Theme.textSoft
                elide: Text.ElideRight
                Accessible.role: Accessible.StaticText
                Accessible.name: text
            }
        }
        GhostButton {
            id: change

            anchors { right: parent.right; verticalCenter: parent.verticalCenter }
            size: GhostButton.Small
            text: qsTr("Cambia…")
            onClicked: sheet.form.choose()
        }
    }
    Column {
        width: parent.width
        spacing: Theme.space4

        Item {
            id: count

            width: parent.width
            height: links.height

            StyledText {
                anchors.verticalCenter: parent.verticalCenter
                look: Theme.type.small
                text: qsTr("%1 di %2 selezionati").arg(sheet.form.parts.chosenCount).arg(sheet.form.parts.total)
                color: Theme.textSoft
                Accessible.role: Accessible.StaticText
                Accessible.name: text
            }
            ChoiceLinks {
                id: links

                anchors.right: parent.right
                choices: sheet.form.parts
                allText: qsTr("Tutti")
                noneText: qsTr("Nessuno")
            }
        }
        RestoreList {
            width: parent.width
            room: sheet.bodyRoom - Theme.controls.listRow - count.height - notes.height - 2 * sheet.spacing - Theme.space4
            choices: sheet.form.parts
            label: sheet.title
        }
    }
    Column {
        id: notes

        width: parent.width
        spacing: Theme.space8

        Repeater {
            model: sheet.form.warnings

            delegate: IconNote {
                required property string modelData

                width: notes.width
                symbol: "link"
                look: Theme.type.small
                text: modelData
            }
        }
        IconNote {
            width: parent.width
            symbol: sheet.form.claudeRuns ? "exclamationmark.triangle" : "trash"
            look: Theme.type.small
            color: sheet.form.claudeRuns ? Theme.danger : Theme.textSoft
            text: sheet.form.claudeRuns ? qsTr("Chiudi Claude prima del ripristino")
                                        : qsTr("Quello che c'è già va nel Cestino, da dove si può riprendere. Le cache "
                                               + "non sono nell'archivio: Claude le riscarica da solo.")
        }
    }
}
