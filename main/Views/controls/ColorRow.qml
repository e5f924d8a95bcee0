// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import Selvane

/// Lets the user pick a profile's colour, or none. It is one Tab stop: arrows, Home and End move, Space picks a
/// colour, and so does Return unless that colour is already chosen.
Row {
    id: row

    required property profileLook look
    property bool picksOnMove: false ///< the arrows pick too, as among radio buttons

    signal picked(string color) ///< empty for none

    readonly property list<string> colors: ["", ...Theme.hues.names]
    readonly property int chosen: Math.max(0, colors.indexOf(look.color))
    /// The cell that Tab goes to.
    property int current: chosen

    function moveTo(index: int): void {
        const cell = cells.itemAt(index)
        if (!cell)
            return
        cell.forceActiveFocus(Qt.TabFocusReason)
        row.current = index
    }
    function step(index: int): void {
        if (index < 0 || index >= row.colors.length)
            return
        row.moveTo(index)
        if (row.picksOnMove)
            row.picked(row.colors[index])
    }

    onChosenChanged: current = chosen

    spacing: Theme.space8

    Accessible.role: Accessible.Grouping
    Accessible.name: qsTr("Colore")

    Repeater {
        id: cells

        model: row.colors

        delegate: ColorCell {
            required property int index
            required property string modelData

            look: row.look.withColor(modelData)
            label: modelData === "" ? qsTr("Nessuna") : modelData
            chosen: index === row.chosen
            tabStop: index === row.current
            answersReturn: !chosen

            onClicked: row.picked(modelData)
            Keys.onLeftPressed: row.step(index - 1)
            Keys.onRightPressed: row.step(index + 1)
            Keys.onPressed: event => {
                event.accepted = event.key === Qt.Key_Home || event.key === Qt.Key_End
                if (event.accepted)
                    row.step(event.key === Qt.Key_Home ? 0 : row.colors.length - 1)
            }
        }
    }
}
