// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import Selvane

/// Leads to the conversations.
Pressable {
    id: link

    required property ConversationListModel conversations
    required property bool isCurrent

    label: qsTr("Conversazioni")
    implicitHeight: Theme.manage.sidebarLink

    Accessible.description: Theme.keyText(qsTr("⌘F"))

    Rectangle {
        anchors.fill: parent
        radius: Theme.radiusCard
        color: link.isCurrent ? Theme.raised : link.hovered ? Theme.rowHover : Qt.alpha(Theme.raised, 0)
    }
    FocusRing {
        controlRadius: Theme.radiusCard
        visible: link.ringed
    }
    PathIcon {
        x: Theme.space16
        anchors.verticalCenter: parent.verticalCenter
        symbol: "bubble.left.and.text.bubble.right"
        size: Theme.iconAlone
        color: link.isCurrent ? Theme.lit : Theme.textSoft
    }
    StyledText {
        id: caption

        x: Theme.manage.profileGlyph + Theme.space20
        anchors.verticalCenter: parent.verticalCenter
        look: Theme.type.control
        text: link.label
    }
    StyledText {
        anchors { right: parent.right; rightMargin: Theme.space12; verticalCenter: parent.verticalCenter }
        visible: link.isCurrent && link.conversations.total > 0
        look: Theme.type.small
        text: Number(link.conversations.total).toLocaleString(Qt.locale("it_IT"), "f", 0)
        color: Theme.textFaint
    }
    KeyCap {
        id: cap

        anchors { right: parent.right; rightMargin: Theme.space12; verticalCenter: parent.verticalCenter }
        // Large text leaves no room for it.
        visible: !link.isCurrent && caption.x + caption.width + Theme.space8 <= cap.x
        keys: Theme.keyText("⌘F")
    }
}
