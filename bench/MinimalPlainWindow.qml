// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

import QtQuick

/// The same five buttons without Qt Quick Controls.
Window {
    width: 980
    height: 660
    visible: true

    component PlainButton: Rectangle {
        id: button

        required property string text

        width: 100
        height: 40
        color: area.pressed ? "darkgray" : "lightgray"

        Text {
            anchors.centerIn: parent
            text: button.text
        }
        MouseArea {
            id: area

            anchors.fill: parent
        }
    }

    Row {
        anchors.centerIn: parent
        spacing: 12

        PlainButton { text: "One" }
        PlainButton { text: "Two" }
        PlainButton { text: "Three" }
        PlainButton { text: "Four" }
        PlainButton { text: "Five" }
    }
}
