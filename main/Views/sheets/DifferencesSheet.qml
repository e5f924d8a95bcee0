// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import Selvane

/// How a changed item differs from the source's, where the desktop has no program that shows it.
Sheet {
    id: sheet

    required property ComponentModel component ///< the item is that of its last `readDifference`

    title: qsTr("Confronto con «%1»").arg(component.sourceName)
    confirmText: qsTr("Chiudi")
    cancelText: ""
    plateWidth: Theme.sheets.differencesWidth
    spacing: Theme.space12
    firstFocus: view
    onClosed: sheet.component.forgetDifference()

    StyledText {
        id: note

        width: parent.width
        look: Theme.type.small
        text: qsTr("%1. Con − le righe di «%2», con + quelle di questo profilo.").arg(sheet.component.difference)
              .arg(sheet.component.sourceName)
        color: Theme.textSoft
        wrapMode: Text.Wrap
        Accessible.role: Accessible.StaticText
        Accessible.name: text
    }
    ListWell {
        width: parent.width
        height: Math.min(Theme.sheets.differencesHeight, sheet.bodyRoom - note.height - sheet.spacing)

        ListView {
            id: view

            anchors.fill: parent
            anchors.margins: Theme.space12
            activeFocusOnTab: true
            clip: true
            model: sheet.component.differenceLines
            boundsBehavior: Flickable.StopAtBounds
            currentIndex: 0
            keyNavigationEnabled: true

            Accessible.role: Accessible.List
            Accessible.name: sheet.title

            delegate: Rectangle {
                id: row

                required property int index
                required property string modelData

                readonly property string sign: modelData.slice(0, 1)

                width: ListView.view.width
                height: line.height
                color: ListView.isCurrentItem && view.activeFocus ? Theme.raised : Theme.transparent

                Accessible.role: Accessible.ListItem
                Accessible.name: modelData

                StyledText {
                    id: line

                    width: parent.width
                    look: Theme.type.listPath
                    text: row.modelData
                    color: row.sign === "+" ? Theme.linked : row.sign === "-" ? Theme.danger
                           : row.sign === " " ? Theme.text : Theme.textFaint
                    wrapMode: Text.WrapAnywhere
                    Accessible.ignored: true
                }
            }
        }
        ThinScrollBar {
            flickable: view
        }
    }
}
