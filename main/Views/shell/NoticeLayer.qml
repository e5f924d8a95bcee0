// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import Selvane

/// The application's notices over a window. One stays until the user can have seen it: its time runs only while
/// the application is the active one. What it tells can be taken back as long as it is shown, and the time stops
/// while somebody is about to.
Item {
    id: notices

    required property AppModel app
    required property bool isKey ///< only the key window shows notices
    required property bool isActive
    required property bool isCovered
    required property int noticeDuration
    required property int offerDuration
    required property real aside ///< how much at the left notices keep clear of

    readonly property bool offers: toast.isShown && toast.action !== "" && !isCovered
    readonly property bool isTyping: Window.activeFocusItem instanceof TextInput || Window.activeFocusItem instanceof TextEdit
    /// For screen readers.
    readonly property string spoken: {
        if (!notices.app.canTakeBack)
            return notices.app.notice
        return qsTr("%1. Per annullare: %2").arg(notices.app.notice).arg(Theme.keyText("⌘Z"))
    }

    anchors.fill: parent
    z: Theme.toastLayer

    Connections {
        target: notices.app

        function onNoticeShown(): void {
            if (notices.isKey)
                Announcer.announce(toast, notices.spoken)
            countdown.begin()
            if (noticeTimer.running)
                noticeTimer.restart()
        }
    }
    Timer {
        id: noticeTimer

        interval: notices.noticeDuration
        running: toast.isShown && toast.action === "" && notices.isActive
        onTriggered: notices.app.clearNotice()
    }
    Countdown {
        id: countdown

        duration: notices.offerDuration
        running: notices.offers && notices.isActive && !toast.isHeld
        onElapsed: notices.app.clearNotice()
    }
    Shortcut {
        sequence: "Ctrl+Z"
        enabled: notices.offers && !notices.isTyping
        onActivated: notices.app.takeBack()
    }
    Shortcut {
        sequence: "F6"
        enabled: notices.offers
        onActivated: toast.takeFocus()
    }
    Toast {
        id: toast

        objectName: "toast"
        text: notices.isKey ? notices.app.notice : ""
        action: notices.isKey && notices.app.canTakeBack ? qsTr("Annulla") : ""
        remaining: countdown.left
        aside: notices.aside
        onTriggered: notices.app.takeBack()
    }
}
