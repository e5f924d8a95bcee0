// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import Selvane

/// Asks in which organisation of a profile's account a conversation is to go on.
Column {
    id: list

    required property string question
    required property var organisations ///< each with "name", "shortId" and "note"
    required property int chosen
    property bool hasLine: false ///< at its foot

    signal organisationChosen(int index)
    signal rowFocused(Item row)

    topPadding: Theme.space8

    StyledText {
        x: Theme.sheets.organisationLeft
        look: Theme.type.small
        text: list.question
        color: Theme.textSoft
        Accessible.role: Accessible.StaticText
        Accessible.name: text
    }
    Repeater {
        model: list.organisations

        delegate: ContinuationTarget {
            id: row

            required property int index
            required property var modelData

            width: list.width
            group: list
            text: modelData.name
            shortId: modelData.shortId
            note: modelData.note
            checked: list.chosen === index
            onChosen: list.organisationChosen(index)
            onActiveFocusChanged: {
                if (activeFocus)
                    list.rowFocused(row)
            }
        }
    }
    Item {
        width: list.width
        height: Theme.space8

        Rectangle {
            anchors.bottom: parent.bottom
            visible: list.hasLine
            width: parent.width
            height: Theme.hairline
            color: Theme.separator
        }
    }
}
