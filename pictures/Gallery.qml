// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import Selvane

/// All shared components in all their states; `page` selects one page.
Window {
    id: window

    readonly property list<string> pages: ["components", "menu", "sheet", "alert", "error", "busy", "toast"]
    property string page: "components"

    width: page === "components" ? 1240 : 1000
    height: page === "components" ? 960 : 700
    visible: true
    color: Theme.windowFill

    Loader {
        anchors.fill: parent
        source: "gallery/" + window.page.charAt(0).toUpperCase() + window.page.slice(1) + "Page.qml"
    }
}
