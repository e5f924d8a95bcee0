// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import Selvane

/// Lets the user pick a profile's symbol. It is one Tab stop: arrows move, Space picks a symbol, and so does
/// Return unless that symbol is already chosen.
ListWell {
    id: grid

    required property string selection ///< symbol name

    signal picked(string symbol)

    readonly property int columns: 12
    readonly property list<string> symbols: [
        "person.crop.circle", "house", "briefcase", "building.2", "hammer", "wrench.and.screwdriver", "paintbrush",
        "pencil.and.ruler", "camera", "film", "music.note", "book", "graduationcap", "flask", "atom", "cpu",
        "terminal", "chevron.left.forwardslash.chevron.right", "chart.bar", "dollarsign.circle", "cart", "globe",
        "airplane", "car", "leaf", "heart", "star", "bolt", "flame", "moon", "sun.max", "gamecontroller", "pawprint",
        "cup.and.saucer", "sparkles"
    ]
    readonly property list<string> names: [
        qsTr("persona"), qsTr("casa"), qsTr("valigetta"), qsTr("edifici"), qsTr("martello"), qsTr("chiave inglese"),
        qsTr("pennello"), qsTr("matita e righello"), qsTr("fotocamera"), qsTr("pellicola"), qsTr("nota musicale"),
        qsTr("libro"), qsTr("tocco da laurea"), qsTr("ampolla"), qsTr("atomo"), qsTr("processore"),
        qsTr("terminale"), qsTr("codice"), qsTr("grafico"), qsTr("moneta"), qsTr("carrello"), qsTr("globo"),
        qsTr("aeroplano"), qsTr("automobile"), qsTr("foglia"), qsTr("cuore"), qsTr("stella"), qsTr("fulmine"),
        qsTr("fiamma"), qsTr("luna"), qsTr("sole"), qsTr("videogioco"), qsTr("zampa"), qsTr("tazza"),
        qsTr("scintille")
    ]
    /// The cell that Tab goes to.
    property int current: Math.max(0, symbols.indexOf(selection))

    function moveTo(index: int): void {
        const cell = cells.itemAt(index)
        if (!cell)
            return
        cell.forceActiveFocus(Qt.TabFocusReason)
        grid.current = index
    }

    onSelectionChanged: current = Math.max(0, symbols.indexOf(selection))

    implicitWidth: columns * Theme.controls.gridCell + 2 * Theme.space16
    implicitHeight: layout.implicitHeight + 2 * Theme.space16

    Accessible.role: Accessible.Grouping
    Accessible.name: qsTr("Icona")

    Grid {
        id: layout

        x: Theme.space16
        y: Theme.space16
        columns: grid.columns

        Repeater {
            id: cells

            model: grid.symbols

            delegate: SymbolCell {
                required property int index
                required property string modelData

                symbol: modelData
                label: grid.names[index]
                chosen: modelData === grid.selection
                tabStop: index === grid.current
                answersReturn: !chosen

                onClicked: grid.picked(modelData)
                Keys.onLeftPressed: grid.moveTo(index - 1)
                Keys.onRightPressed: grid.moveTo(index + 1)
                Keys.onUpPressed: grid.moveTo(index - grid.columns)
                Keys.onDownPressed: grid.moveTo(index + grid.columns)
            }
        }
    }
}
