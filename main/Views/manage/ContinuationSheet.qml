// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import Selvane

/// Asks in which profile a conversation is to go on, and tells what happens then.
Sheet {
    id: sheet

    required property AppModel app
    required property ConversationListModel conversations
    required property int row

    title: qsTr("Continua in…")
    confirmText: form.confirmText
    confirmEnabled: form.canContinue
    plateWidth: Theme.sheets.continuationWidth
    spacing: Theme.space12
    closesWhenDone: true
    onConfirmed: form.submit()

    ContinuationForm {
        id: form

        app: sheet.app
        conversations: sheet.conversations
        row: sheet.row
        onSucceeded: sheet.close()
    }
    Item {
        width: parent.width
        height: Theme.controls.listRow

        ProfileGlyph {
            id: glyph

            anchors.verticalCenter: parent.verticalCenter
            size: Theme.manage.profileGlyph
            look: form.look
        }
        Column {
            anchors { left: glyph.right; leftMargin: Theme.space12; right: parent.right }
            anchors.verticalCenter: parent.verticalCenter

            StyledText {
                width: parent.width
                look: Theme.type.control
                text: form.title
                elide: Text.ElideRight
                Accessible.role: Accessible.StaticText
                Accessible.name: text
            }
            StyledText {
                width: parent.width
                look: Theme.type.small
                text: form.facts
                color: Theme.textSoft
                elide: Text.ElideMiddle
                Accessible.role: Accessible.StaticText
                Accessible.name: text
            }
        }
    }
    SectionTitle {
        text: qsTr("Profilo")
    }
    IconNote {
        width: parent.width
        visible: form.targets.length === 0
        symbol: "leaf"
        text: qsTr("C'è solo questo profilo: per continuare in un altro, prima creane uno.")
    }
    ListWell {
        width: parent.width
        visible: form.targets.length > 0
        height: Math.min(pane.contentHeight, Theme.sheets.continuationWell)

        Flickable {
            id: pane

            anchors.fill: parent
            contentHeight: profiles.height
            boundsBehavior: Flickable.StopAtBounds
            clip: true

            Column {
                id: profiles

                width: parent.width

                Repeater {
                    model: form.targets

                    delegate: ContinuationTarget {
                        required property int index
                        required property var modelData

                        width: profiles.width
                        text: modelData.name
                        note: modelData.note
                        look: modelData.look
                        isOpen: modelData.isOpen
                        checked: form.target === index
                        onChosen: form.target = index
                        onActiveFocusChanged: {
                            if (activeFocus)
                                pane.contentY = Math.max(Math.min(pane.contentY, y), y + height - pane.height)
                        }
                    }
                }
            }
        }
        ThinScrollBar {
            flickable: pane
        }
    }
    Column {
        width: parent.width
        visible: form.organisations.length > 1

        StyledText {
            look: Theme.type.small
            text: qsTr("L'account ha %1 organizzazioni: in quale?").arg(form.organisations.length)
            color: Theme.textSoft
            Accessible.role: Accessible.StaticText
            Accessible.name: text
        }
        Repeater {
            model: form.organisations

            delegate: ContinuationTarget {
                required property int index
                required property var modelData

                width: parent.width
                text: modelData.name
                shortId: modelData.shortId
                note: modelData.note
                checked: form.organisation === index
                onChosen: form.organisation = index
            }
        }
    }
    SectionTitle {
        visible: form.targets.length > 0
        text: qsTr("Cosa succede")
    }
    Repeater {
        model: form.targets.length === 0 ? [] : [["arrow.right", form.when], ["doc.on.doc", form.copies],
            ["link", qsTr("Le chat di claude.ai non si possono spostare: restano nel loro account.")]]

        delegate: IconNote {
            required property var modelData

            width: parent.width
            visible: text !== ""
            symbol: modelData[0]
            text: modelData[1]
        }
    }
}
