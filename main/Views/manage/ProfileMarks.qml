// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import Selvane

/// The marks of a profile in the sidebar. Their user must tell assistive technology what they mean.
Row {
    id: marks

    required property string sourceName
    required property bool hasOwnAccount
    required property bool hasSource
    required property bool isActive
    required property bool isRunning

    readonly property string meaning: {
        const said = []
        if (marks.hasOwnAccount)
            said.push(account.help)
        if (marks.hasSource)
            said.push(source.help)
        if (marks.isActive)
            said.push(active.help)
        if (marks.isRunning)
            said.push(running.help)
        return said.join(", ")
    }

    signal pressed

    spacing: Theme.manage.markGap

    RowMark {
        id: account

        visible: marks.hasOwnAccount
        symbol: "person.badge.key"
        help: qsTr("Account Claude separato")
        onClicked: marks.pressed()
    }
    RowMark {
        id: source

        visible: marks.hasSource
        symbol: "arrow.triangle.branch"
        help: qsTr("eredita da «%1»").arg(marks.sourceName)
        onClicked: marks.pressed()
    }
    RowMark {
        id: active

        visible: marks.isActive
        implicitWidth: Theme.manage.markLeaf
        help: qsTr("Ultimo profilo avviato")
        onClicked: marks.pressed()

        LeafShape {
            anchors.centerIn: parent
            width: Theme.manage.markLeaf
            height: Theme.manage.markLeaf
            tip: Theme.manage.markTip
            color: Theme.lit
        }
    }
    RowMark {
        id: running

        visible: marks.isRunning
        implicitWidth: Theme.manage.markDot
        help: qsTr("Aperto in Claude")
        onClicked: marks.pressed()

        Rectangle {
            anchors.centerIn: parent
            width: Theme.manage.markDot
            height: Theme.manage.markDot
            radius: Theme.manage.markDot / 2
            color: Theme.opened
        }
    }
}
