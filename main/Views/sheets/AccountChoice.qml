// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import Selvane

/// Whether a new profile uses its source's login or its own.
Column {
    id: choice

    required property NewProfileForm form

    spacing: Theme.sheets.titleGap

    SectionTitle {
        width: parent.width
        text: qsTr("Account Claude")
    }
    ListWell {
        width: parent.width
        height: options.height

        Accessible.role: Accessible.Grouping
        Accessible.name: qsTr("Account Claude")

        Column {
            id: options

            readonly property real inner: width - 2 * Theme.space16

            width: parent.width
            topPadding: Theme.space12
            bottomPadding: Theme.space12
            spacing: Theme.space12

            RadioRow {
                x: Theme.space16
                width: options.inner
                text: qsTr("Stesso account di «%1»").arg(choice.form.sourceName)
                detail: qsTr("Il profilo usa lo stesso login, ma skill, regole e impostazioni restano sue.")
                checked: choice.form.sharesAccount
                onChosen: choice.form.sharesAccount = true
            }
            Rectangle {
                width: parent.width
                height: Theme.hairline
                color: Theme.separator
            }
            RadioRow {
                id: separate

                x: Theme.space16
                width: options.inner
                text: qsTr("Nuovo account (login separato)")
                symbol: "person.badge.plus"
                detail: qsTr("Al primo avvio Claude chiederà il login: puoi usare un altro account. Le chat web "
                             + "restano nel loro account; le sessioni del tab Code si possono portare qui.")
                checked: !choice.form.sharesAccount
                onChosen: choice.form.sharesAccount = false
            }
            SwitchRow {
                x: separate.x + separate.textLeft
                width: options.inner - separate.textLeft
                visible: !choice.form.sharesAccount
                leading: true
                text: qsTr("Porta le sessioni del tab Code di «%1»").arg(choice.form.sourceName)
                checked: choice.form.copiesSessions
                onToggled: checked => choice.form.copiesSessions = checked
            }
        }
    }
}
