// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import Selvane

/// Shows which account of Claude Desktop the profile uses.
Card {
    id: section

    required property ProfileDetailModel profile
    required property bool isNarrow

    readonly property bool hasChoice: profile.accountChoices.length > 0

    implicitHeight: {
        if (section.isNarrow)
            return Math.max(Theme.manage.accountHeightNarrow, texts.height + 2 * Theme.space12)
        const choice = section.hasChoice ? Theme.space12 + choices.height : 0
        return Math.max(Theme.manage.cardHeight, Theme.manage.cardTop + texts.height + choice + Theme.space16)
    }

    Accessible.role: Accessible.Grouping
    Accessible.name: heading.text

    Column {
        id: texts

        x: Theme.space16
        y: section.isNarrow ? Math.round((section.height - height) / 2) : Theme.manage.cardTop
        width: (section.isNarrow && section.hasChoice ? caption.x - Theme.space12 : section.width - Theme.space16) - x
        spacing: section.isNarrow ? Theme.space2 : Theme.space6

        SectionTitle {
            id: heading

            width: parent.width
            text: qsTr("Account Claude")
        }
        StyledText {
            width: parent.width
            look: Theme.type.small
            text: section.profile.account
            color: Theme.textSoft
            wrapMode: Text.Wrap
            Accessible.role: Accessible.StaticText
            Accessible.name: text
        }
    }
    StyledText {
        id: caption

        x: section.isNarrow ? choices.x - Theme.space12 - width : Theme.space16
        anchors.verticalCenter: choices.verticalCenter
        visible: section.hasChoice
        look: Theme.type.small
        text: qsTr("Account")
        color: Theme.textSoft
        Accessible.ignored: true
    }
    DropDown {
        id: choices

        readonly property real room: section.width - 2 * Theme.space16 - caption.width - Theme.space12

        x: section.width - width - (section.isNarrow ? Theme.space12 : Theme.space16)
        y: section.isNarrow ? Math.round((section.height - height) / 2) : section.height - height - Theme.space16
        width: section.isNarrow ? Theme.manage.accountChoiceNarrow : room
        visible: section.hasChoice
        label: qsTr("Account")
        labels: section.profile.accountChoices
        currentIndex: section.profile.accountIndex
        onChosen: index => section.profile.setAccount(index)
    }
}
