// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import Selvane

Item {
    id: page

    Foliage { anchors.right: parent.right; y: 108 }
    Sheet {
        id: sheet

        title: "Nuovo profilo"
        confirmText: "Crea profilo"
        confirmEnabled: false
        firstFocus: nameField

        Row {
            spacing: 16

            TextInputField { id: nameField; width: 248; label: "Nome"; placeholder: "es. Lavoro, Cliente X, Privato" }
            TextInputField { width: 248; label: "Descrizione"; placeholder: "Facoltativa" }
        }
        SymbolGrid { width: parent.width; selection: "briefcase" }
        DropDown {
            width: parent.width
            size: DropDown.Large
            labels: ["Profilo vuoto", "Principale"]
            currentIndex: 1
        }
        ListWell {
            width: parent.width
            height: accounts.height + 32

            Column {
                id: accounts

                x: 16
                y: 16
                width: parent.width - 32
                spacing: 20

                RadioRow {
                    width: parent.width
                    text: "Stesso account di «Principale»"
                    detail: "Il profilo usa lo stesso login, ma skill, regole e impostazioni restano sue."
                    checked: true
                }
                RadioRow {
                    width: parent.width
                    text: "Nuovo account (login separato)"
                    symbol: "person.badge.plus"
                    detail: "Al primo avvio Claude chiederà il login: puoi usare un altro account."
                    checked: false
                }
                SwitchRow { width: parent.width; leading: true; text: "Porta le sessioni"; checked: true }
            }
        }
        ListWell {
            width: parent.width
            height: 120

            Column {
                width: parent.width

                CheckBoxRow { width: parent.width; inList: true; text: "analisi-log"; checked: true; hovered: true }
                CheckBoxRow { width: parent.width; inList: true; text: "note-di-rilascio"; checked: false }
                CheckBoxRow {
                    width: parent.width
                    inList: true
                    text: "Migrazione"
                    detail: "~/Progetti/ordini-api"
                    checked: true
                }
            }
        }
    }
}
