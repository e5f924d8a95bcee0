// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import Selvane

/// Asks before a profile's account is taken over from the profile that is open with it.
AlertDialog {
    id: alert

    required property AppModel app
    required property string launching ///< id of the profile that asks for the account

    title: qsTr("Account già aperto in Claude")
    message: app.closeMessage
    warning: app.closeWarning
    confirmText: qsTr("Chiudi e riapri")
    startsOnCancel: true
    textTop: Theme.space24 + (well.visible ? well.height + Theme.space20 : 0)

    component Party: Column {
        id: party

        required property string profileId
        required property bool isOpen

        width: Theme.sheets.partyWidth
        spacing: Theme.space12

        ProfileGlyph {
            anchors.horizontalCenter: parent.horizontalCenter
            size: Theme.sheets.partyGlyph
            look: alert.app.lookOf(party.profileId)
            isLit: !party.isOpen
        }
        Column {
            width: parent.width
            spacing: Theme.space2

            StyledText {
                width: parent.width
                look: Theme.type.rowName
                text: alert.app.nameOf(party.profileId)
                horizontalAlignment: Text.AlignHCenter
                elide: Text.ElideRight
            }
            Row {
                anchors.horizontalCenter: parent.horizontalCenter
                spacing: Theme.space6

                Rectangle {
                    anchors.verticalCenter: parent.verticalCenter
                    visible: party.isOpen
                    width: Theme.space8
                    height: width
                    radius: width / 2
                    color: Theme.opened
                }
                StyledText {
                    look: Theme.type.small
                    text: party.isOpen ? qsTr("Aperto") : qsTr("da avviare")
                    color: party.isOpen ? Theme.opened : Theme.textSoft
                }
            }
        }
    }

    ListWell {
        id: well

        x: Theme.space24
        y: Theme.space24
        width: parent.width - 2 * x
        height: parties.height + 2 * Theme.space20
        visible: alert.app.openToClose !== ""

        Row {
            id: parties

            anchors.centerIn: parent
            spacing: Theme.space8

            Party {
                profileId: alert.app.openToClose
                isOpen: true
            }
            PathIcon {
                y: Math.round((Theme.sheets.partyGlyph - height) / 2)
                name: "arrow-right"
                weight: PathIcon.Bold
                size: Theme.iconControl
                color: Theme.textFaint
            }
            Party {
                profileId: alert.launching
                isOpen: false
            }
        }
    }
}
