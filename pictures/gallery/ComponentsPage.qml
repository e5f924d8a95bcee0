// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import Selvane

Item {
    id: page

    property profileLook plain

    Component.onCompleted: {
        modes.open()
    }

    Eyebrow { x: 40; y: 24; text: "Pulsanti" }
    ButtonStates { x: 40; y: 52 }

    Eyebrow { x: 960; y: 24; text: "Segni" }
    Column {
        x: 960
        y: 52
        spacing: 12

        BrandLockup {}
        Badge { kind: Badge.Merged; text: "unificata con «Principale»" }
        Badge { kind: Badge.Linked; text: "collegata" }
        Badge { kind: Badge.Own; text: "propria" }
        Badge { kind: Badge.Broken; text: "collegamento interrotto" }
        Row {
            spacing: 16

            ToggleSwitch { checked: true }
            ToggleSwitch { checked: false }
            CheckBoxRow { width: 16; text: ""; checked: true }
            CheckBoxRow { width: 16; text: ""; checked: false }
            RadioRow { width: 16; text: ""; checked: true }
            RadioRow { width: 16; text: ""; checked: false }
        }
        Row {
            spacing: 16

            ToggleSwitch { checked: true; ringed: true }
            CheckBoxRow { width: 16; text: ""; checked: true; ringed: true }
            RadioRow { width: 16; text: ""; checked: true; ringed: true }
        }
        Row {
            spacing: 8

            KeyCap { keys: "←" }
            KeyCap { keys: "→" }
            KeyCap { keys: "invio" }
            KeyCap { keys: "⌘," }
            TextLink { text: "Tutti" }
            TextLink { text: "Nessuno"; ringed: true }
        }
        Row {
            spacing: 16

            BrandMark { size: 56 }
            BrandMark { size: 16 }
            Kelvo8Logo { size: 56; color: Theme.textSoft }
            Kelvo8Logo { size: 20; color: Theme.textFaint }
        }
    }

    Eyebrow { x: 40; y: 396; text: "Campi e menu" }
    Row {
        x: 40
        y: 424
        spacing: 24

        TextInputField { label: "normale"; text: "Lavoro" }
        TextInputField { label: "segnaposto"; placeholder: "Facoltativa" }
        TextInputField { label: "fuoco"; text: "Lavoro"; ringed: true }
        HeaderField { label: "Nome"; value: "Lavoro"; look: Theme.type.nameField }
    }

    DropDown {
        id: modes

        x: 40
        y: 520
        label: "Modalità"
        labels: ["Esteso", "Unificato", "Separato", "Vuoto"]
        explanations: [
            "Importa le regole della sorgente e aggiunge le proprie",
            "Collegato alla sorgente: stesse modifiche, nuovi elementi sincronizzati all'avvio",
            "Copia indipendente: le modifiche restano in questo profilo", "Parte vuoto"
        ]
        currentIndex: 0
        ringed: true
    }
    LookChooser {
        x: 690
        y: 480
        look: page.plain.withSymbol("briefcase").withColor("Lago")
        outside: Theme.windowFill
    }

    Row {
        x: 690
        y: 700
        spacing: 16

        ProfileGlyph { look: page.plain.withSymbol("flask"); size: 80; isLit: false }
        ProfileGlyph { look: page.plain.withSymbol("flask"); size: 80; isLit: true }
        ProfileGlyph { look: page.plain.withSymbol("house").withColor("Erica"); size: 32; isLit: true }
        ProfileGlyph { look: page.plain.withSymbol("no.such.symbol"); size: 32; isLit: false }
        Foliage {}
    }
    Card {
        x: 690
        y: 860
        width: 510
        height: 80

        SwitchRow {
            x: 16
            y: 12
            width: 478
            text: "Profilo Principale"
            checked: true
            detail: "~/.claude e i dati normali di Claude Desktop"
        }
        ThinScrollBar { flickable: scrolled }
        Flickable {
            id: scrolled

            anchors.fill: parent
            contentHeight: 200
        }
    }
}
