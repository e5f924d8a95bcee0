// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import Selvane

/// A card whose header stays in sight, at the top of the scrolled view, while the rest of the card scrolls below it.
Card {
    id: card

    /// The visible part of the scrolled column, measured from the card's top.
    required property real visibleTop
    required property real headerHeight
    default property alias content: inside.data
    property alias headerContent: header.data

    readonly property Item header: header
    readonly property bool isStuck: header.y > 0

    // The header is first for the Tab key, and above the rest.
    Item {
        id: header

        y: Math.max(0, Math.min(Math.round(card.visibleTop), card.height - height - card.radius))
        z: 1
        width: card.width
        height: card.headerHeight

        MouseArea {
            anchors.fill: parent
            enabled: card.isStuck // presses mustn't reach what is covered
            acceptedButtons: Qt.AllButtons
            hoverEnabled: true
        }
        Rectangle {
            x: Theme.hairline
            y: Math.max(0, card.radius - header.y) // nothing is covered by the card's corners
            width: parent.width - 2 * Theme.hairline
            height: parent.height - y
            visible: card.isStuck
            color: card.color
        }
    }
    Item {
        id: inside

        anchors.fill: parent
    }
}
