// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import Selvane

/// The top of the picker: the logo, and the buttons that lead elsewhere.
Item {
    id: bar

    required property bool offersNewProfile ///< the button at the end of the tiles may be out of sight

    signal manageAsked
    signal newProfileAsked

    BrandLockup {
        height: parent.height
    }
    Row {
        anchors.right: parent.right
        y: (parent.height - height) / 2
        spacing: Theme.space8

        Repeater {
            model: bar.offersNewProfile ? 1 : 0

            delegate: GhostButton {
                text: qsTr("Nuovo profilo")
                symbol: "plus"
                onClicked: bar.newProfileAsked()
            }
        }
        GhostButton {
            text: qsTr("Gestisci profili")
            symbol: "slider.horizontal.3"
            onClicked: bar.manageAsked()
        }
        GhostButton {
            symbol: "gearshape"
            label: qsTr("Impostazioni")
            help: Theme.keyText(qsTr("Impostazioni (⌘,)"))
            onClicked: bar.manageAsked()
        }
    }
}
