// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import Selvane

/// The sessions in the Code tab of the profile's account, and those waiting for its next launch.
Card {
    id: section

    required property ProfileDetailModel profile
    required property bool isNarrow

    signal importAsked

    implicitHeight: Math.max(isNarrow ? 0 : Theme.manage.cardHeight, texts.y + texts.height + Theme.space16)

    Accessible.role: Accessible.Grouping
    Accessible.name: heading.text

    PathIcon {
        anchors.verticalCenter: heading.verticalCenter
        x: Theme.space16
        symbol: "bubble.left.and.text.bubble.right"
        size: Theme.iconAlone
        color: Theme.textSoft
    }
    SectionTitle {
        id: heading

        x: Theme.space16 + Theme.iconAlone + Theme.space10
        y: Theme.manage.cardTop
        width: importButton.x - x - Theme.space12
        text: qsTr("Sessioni del tab Code")
    }
    GhostButton {
        id: importButton

        anchors { right: parent.right; rightMargin: Theme.space12; verticalCenter: heading.verticalCenter }
        size: GhostButton.Small
        text: qsTr("Importa…")
        onClicked: section.importAsked()
    }
    Column {
        id: texts

        x: Theme.space16
        y: heading.y + heading.height + Theme.space6
        width: section.width - 2 * Theme.space16

        StyledText {
            width: parent.width
            look: Theme.type.small
            text: section.profile.sessions
            elide: Text.ElideRight
            Accessible.ignored: text === ""
            Accessible.role: Accessible.StaticText
            Accessible.name: text
        }
        StyledText {
            width: parent.width
            visible: text !== ""
            look: Theme.type.small
            text: section.profile.pendingSessions
            color: Theme.lit
            wrapMode: Text.Wrap
            Accessible.role: Accessible.StaticText
            Accessible.name: text
        }
        StyledText {
            width: parent.width
            topPadding: Theme.space8
            look: Theme.type.small
            text: qsTr("Le chat di claude.ai restano nel loro account; le sessioni Code si possono copiare tra profili")
            color: Theme.textFaint
            wrapMode: Text.Wrap
            Accessible.role: Accessible.StaticText
            Accessible.name: text
        }
    }
}
