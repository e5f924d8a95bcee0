// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import Selvane

/// Asks which copy of Claude Desktop a sign-in is for, which the browser has just ended.
Sheet {
    id: sheet

    required property AppModel app
    property int chosen: app.signInPreset

    title: qsTr("Di chi è questo accesso?")
    confirmText: qsTr("Passa l'accesso")
    confirmEnabled: chosen >= 0
    plateWidth: Theme.sheets.importWidth
    spacing: Theme.space16
    firstFocus: rows.itemAt(chosen)
    onConfirmed: app.answerSignIn(chosen)
    onCancelled: app.answerSignIn(-1)

    StyledText {
        width: parent.width
        look: Theme.type.body
        text: qsTr("Il browser ha concluso un accesso (%1). Scegli il profilo da cui l'hai cominciato.")
              .arg(sheet.app.signInLink)
        color: Theme.textSoft
        wrapMode: Text.Wrap
        Accessible.role: Accessible.StaticText
        Accessible.name: text
    }
    Column {
        width: parent.width
        spacing: Theme.space12

        Accessible.role: Accessible.Grouping
        Accessible.name: sheet.title

        Repeater {
            id: rows

            model: sheet.app.signInNames

            delegate: RadioRow {
                id: row

                required property int index
                required property string modelData

                width: parent.width
                text: modelData
                detail: sheet.app.signInDetails[row.index] ?? ""
                checked: row.index === sheet.chosen
                onChosen: sheet.chosen = row.index
            }
        }
    }
}
