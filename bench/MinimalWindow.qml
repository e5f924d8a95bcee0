// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

import QtQuick
import QtQuick.Controls.Basic

/// Five buttons in a window as large as the picker.
Window {
    width: 980
    height: 660
    visible: true

    Row {
        anchors.centerIn: parent
        spacing: 12

        Button { text: "One" }
        Button { text: "Two" }
        Button { text: "Three" }
        Button { text: "Four" }
        Button { text: "Five" }
    }
}
