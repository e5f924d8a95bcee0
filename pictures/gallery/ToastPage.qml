// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import Selvane

/// Notices: one that can be taken back, while its time runs out, with its button under the pointer and focused; and a
/// plain one.
Column {
    id: page

    readonly property string deleted: "Profilo «Laboratorio» spostato nel Cestino"

    padding: 24

    Repeater {
        model: [1, 0.5, 0.125]

        delegate: Item {
            required property real modelData

            width: 480
            height: 88

            Toast {
                text: page.deleted
                action: "Annulla"
                remaining: parent.modelData
            }
        }
    }
    Row {
        spacing: 24

        Repeater {
            model: 3

            delegate: Rectangle {
                id: plate

                required property int index

                width: 120
                height: 40
                color: Theme.text

                ToastAction {
                    anchors.centerIn: parent
                    text: "Annulla"
                    hovered: plate.index === 1
                    ringed: plate.index === 2
                }
            }
        }
    }
    Item {
        width: 480
        height: 88

        Toast { text: "Aggiunti 2, rimosso 1 collegamento"; remaining: 1 }
    }
}
