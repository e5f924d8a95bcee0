// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import Selvane

/// How far work is, in a bar if the whole is known and in words, and the button that cancels it.
Column {
    id: detail

    required property WorkProgress work

    readonly property bool canCancel: work !== null && work.canCancel
    readonly property bool hasBar: work !== null && work.fraction >= 0 && !work.isCancelling

    Item {
        width: parent.width
        height: detail.hasBar ? Theme.space16 + Theme.sheets.progressHeight : 0
        visible: detail.hasBar

        Rectangle {
            anchors.horizontalCenter: parent.horizontalCenter
            anchors.bottom: parent.bottom
            width: Math.min(parent.width, Theme.sheets.progressBar)
            height: Theme.sheets.progressHeight
            radius: height / 2
            color: Theme.windowFill
            border.width: Theme.hairline
            border.color: Theme.separator

            Accessible.role: Accessible.ProgressBar
            Accessible.name: line.text

            LeafShape {
                height: parent.height
                visible: detail.hasBar && detail.work.fraction > 0
                width: Math.max(height, parent.width * (detail.hasBar ? detail.work.fraction : 0))
                tip: Theme.hairline
                color: Theme.lit
            }
        }
    }
    StyledText {
        id: line

        width: parent.width
        topPadding: detail.hasBar ? Theme.space12 : Theme.space4
        horizontalAlignment: Text.AlignHCenter
        look: Theme.type.small
        color: Theme.textSoft
        text: detail.work ? detail.work.detail : ""
        wrapMode: Text.Wrap
    }
    Item {
        width: parent.width
        height: Theme.space20 + cancel.height
        visible: detail.canCancel

        GhostButton {
            id: cancel

            anchors.horizontalCenter: parent.horizontalCenter
            anchors.bottom: parent.bottom
            text: qsTr("Annulla")
            available: detail.canCancel && !detail.work.isCancelling
            onClicked: detail.work.cancel()
        }
    }
}
