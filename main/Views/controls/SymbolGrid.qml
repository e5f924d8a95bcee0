// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import Selvane

/// Lets the user pick a profile's symbol. It is one Tab stop: arrows, Home and End move, Space picks a symbol,
/// and so does Return unless that symbol is already chosen.
FocusScope {
    id: grid

    required property string selection ///< symbol name
    property bool picksOnMove: false ///< the arrows pick too, as among radio buttons

    signal picked(string symbol)
    signal leftBelow ///< the arrow down where no cell is below

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
    function step(index: int): void {
        if (index < 0 || index >= grid.symbols.length)
            return
        grid.moveTo(index)
        if (grid.picksOnMove)
            grid.picked(grid.symbols[index])
    }

    onSelectionChanged: current = Math.max(0, symbols.indexOf(selection))

    implicitWidth: columns * Theme.controls.gridCell
    implicitHeight: layout.implicitHeight

    Accessible.role: Accessible.Grouping
    Accessible.name: qsTr("Icona")

    Grid {
        id: layout

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
                Keys.onLeftPressed: grid.step(index - 1)
                Keys.onRightPressed: grid.step(index + 1)
                Keys.onUpPressed: grid.step(index - grid.columns)
                Keys.onDownPressed: {
                    if (index + grid.columns < grid.symbols.length)
                        grid.step(index + grid.columns)
                    else
                        grid.leftBelow()
                }
                Keys.onPressed: event => {
                    event.accepted = event.key === Qt.Key_Home || event.key === Qt.Key_End
                    if (event.accepted)
                        grid.step(event.key === Qt.Key_Home ? 0 : grid.symbols.length - 1)
                }
            }
        }
    }
}
