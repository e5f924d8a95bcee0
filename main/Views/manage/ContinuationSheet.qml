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

            property Item inSight: null ///< the row that had the focus last

            function showRow(row: Item): void {
                inSight = row
                const top = row.mapToItem(contentItem, 0, 0).y
                contentY = Math.max(Math.min(contentY, top), top + row.height - height)
            }

            anchors.fill: parent
            contentHeight: profiles.height
            boundsBehavior: Flickable.StopAtBounds
            clip: true
            // The first row gets the focus before there is any height.
            onHeightChanged: {
                if (inSight)
                    showRow(inSight)
            }

            Column {
                id: profiles

                width: parent.width

                Repeater {
                    id: targets

                    model: form.targets

                    delegate: Column {
                        id: entry

                        required property int index
                        required property var modelData
                        readonly property bool isLast: index === targets.count - 1
                        readonly property var organisations: form.target === index ? form.organisations : []

                        width: profiles.width

                        ContinuationTarget {
                            id: target

                            width: parent.width
                            text: entry.modelData.name
                            note: entry.modelData.note
                            look: entry.modelData.look
                            isOpen: entry.modelData.isOpen
                            checked: form.target === entry.index
                            hasLine: !entry.isLast || entry.organisations.length > 0
                            group: profiles
                            onChosen: form.target = entry.index
                            onActiveFocusChanged: {
                                if (activeFocus)
                                    pane.showRow(target)
                            }
                        }
                        Organisations {
                            width: parent.width
                            visible: entry.organisations.length > 0
                            hasLine: !entry.isLast
                            question: form.organisationQuestion
                            organisations: entry.organisations
                            chosen: form.organisation
                            onOrganisationChosen: index => form.organisation = index
                            onRowFocused: row => pane.showRow(row)
                        }
                    }
                }
            }
        }
        ThinScrollBar {
            flickable: pane
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
