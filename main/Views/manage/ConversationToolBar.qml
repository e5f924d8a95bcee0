// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import Selvane

/// How many conversations there are.
Item {
    id: bar

    required property ConversationListModel conversations
    required property real indent ///< of the content below

    implicitHeight: Theme.manage.toolBarHeight

    StyledText {
        id: heading

        anchors.verticalCenter: parent.verticalCenter
        x: bar.indent
        look: Theme.type.alertTitle
        text: qsTr("Conversazioni")
        Accessible.role: Accessible.Heading
        Accessible.name: text
    }
    StyledText {
        anchors.baseline: heading.baseline
        x: heading.x + heading.width + Theme.space12
        look: Theme.type.small
        text: bar.conversations.total === 0 && bar.conversations.isLoading ? qsTr("Lettura delle conversazioni…")
                                                                           : bar.conversations.tally
        color: Theme.textFaint
        Accessible.role: Accessible.StaticText
        Accessible.name: text
    }
    GhostButton {
        anchors { right: parent.right; rightMargin: Theme.manage.toolBarInset; verticalCenter: parent.verticalCenter }
        bare: true
        size: GhostButton.Small
        symbol: "arrow.triangle.2.circlepath"
        text: qsTr("Aggiorna")
        onClicked: bar.conversations.refresh()
    }
    Rectangle {
        anchors.bottom: parent.bottom
        width: parent.width
        height: Theme.hairline
        color: Theme.separator
    }
}
