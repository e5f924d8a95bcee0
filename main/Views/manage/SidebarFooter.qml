// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import Selvane

/// Settings and commands of the application itself.
Item {
    id: footer

    required property AppModel app
    required property Updates updates
    required property ConversationListModel conversations
    required property bool showsConversations

    readonly property bool hasUpdates: updates.isAvailable

    signal newProfileAsked
    signal backupAsked
    signal conversationsAsked
    signal pickerAsked
    signal aboutAsked

    /// The space around a bare button's text.
    readonly property real barePadding: checkButton.padding + Theme.hairline

    implicitHeight: content.y + content.implicitHeight + Theme.space16

    Rectangle {
        width: parent.width
        height: Theme.hairline
        color: Theme.separator
    }
    SidebarLink {
        id: link

        x: Theme.manage.listInset
        y: Theme.space8 + Theme.hairline
        width: parent.width - 2 * Theme.manage.listInset
        conversations: footer.conversations
        isCurrent: footer.showsConversations
        onClicked: footer.conversationsAsked()
    }
    Rectangle {
        x: Theme.manage.sidebarMargin
        y: link.y + link.height + Theme.space8
        width: parent.width - 2 * x
        height: Theme.hairline
        color: Theme.separator
    }
    Column {
        id: content

        x: Theme.manage.sidebarMargin
        y: link.y + link.height + Theme.space8 + Theme.space12
        width: parent.width - 2 * Theme.manage.sidebarMargin
        spacing: Theme.space8

        SwitchRow {
            width: parent.width
            look: Theme.type.small
            textColor: Theme.textSoft
            text: qsTr("Chiudi Selvane dopo l'avvio")
            checked: footer.app.closeAfterLaunch
            onToggled: checked => footer.app.closeAfterLaunch = checked
        }
        SwitchRow {
            width: parent.width
            look: Theme.type.small
            textColor: Theme.textSoft
            text: qsTr("Prima i più recenti")
            help: qsTr("La scelta del profilo comincia da quelli avviati per ultimi")
            checked: footer.app.recentFirst
            onToggled: checked => footer.app.recentFirst = checked
        }
        SwitchRow {
            visible: footer.app.canReceiveSignIns
            width: parent.width
            look: Theme.type.small
            textColor: Theme.textSoft
            text: qsTr("Ricevi gli accessi dal browser")
            help: qsTr("Quando un accesso finisce nel browser, Selvane lo passa al Claude da cui è cominciato")
            checked: footer.app.receivesSignIns
            onToggled: checked => footer.app.receivesSignIns = checked
        }
        SwitchRow {
            visible: footer.hasUpdates
            width: parent.width
            look: Theme.type.small
            textColor: Theme.textSoft
            text: qsTr("Installa gli aggiornamenti da sola")
            help: qsTr("Selvane scarica le nuove versioni e le installa quando si chiude")
            checked: footer.updates.installsAutomatically
            onToggled: checked => footer.updates.installsAutomatically = checked
        }
        Flow {
            visible: footer.hasUpdates
            width: parent.width
            spacing: Theme.space8

            StyledText {
                id: version

                height: Theme.controls.smallHeight
                look: Theme.type.small
                text: qsTr("Versione %1").arg(footer.updates.version)
                color: Theme.textFaint
            }
            Item {
                readonly property real room: parent.width - version.width - Theme.space8

                width: checkButton.width - footer.barePadding <= room ? room : parent.width
                height: checkButton.height

                GhostButton {
                    id: checkButton

                    anchors { right: parent.right; rightMargin: -footer.barePadding }
                    bare: true
                    soft: true
                    size: GhostButton.Small
                    text: qsTr("Verifica aggiornamenti")
                    available: footer.updates.canCheck
                    onClicked: footer.updates.checkNow()
                }
            }
        }
        Flow {
            topPadding: Theme.space4
            width: parent.width
            spacing: Theme.space8

            GhostButton {
                id: backupButton

                symbol: "archivebox"
                label: qsTr("Esporta un backup")
                help: qsTr("Esporta un backup dei dati di Claude")
                onClicked: footer.backupAsked()
            }
            GhostButton {
                id: pickerButton

                symbol: "square.grid.2x2"
                label: qsTr("Torna alla scelta del profilo")
                help: Theme.keyText(qsTr("Torna alla scelta del profilo (⌘0)"))
                onClicked: footer.pickerAsked()
            }
            Item {
                readonly property real room: parent.width - backupButton.width - pickerButton.width - 2 * Theme.space8

                width: newButton.width <= room ? room : parent.width
                height: newButton.height

                GhostButton {
                    id: newButton

                    anchors.right: parent.right
                    symbol: "plus"
                    text: qsTr("Nuovo profilo")
                    onClicked: footer.newProfileAsked()
                }
            }
        }
        GhostButton {
            x: -footer.barePadding
            visible: Qt.platform.os !== "osx" // which has a menu for that
            bare: true
            soft: true
            size: GhostButton.Small
            text: qsTr("Selvane %1 · Licenze").arg(footer.updates.version)
            onClicked: footer.aboutAsked()
        }
    }
}
