// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import Selvane

/// A checklist in a well, or a text if it is empty. It has the wanted height, but shrinks in a low window as
/// long as a few rows stay visible.
ListWell {
    id: well

    required property ChoiceListModel choices
    required property string label ///< accessible name
    required property string emptyText
    property real rowHeight: Theme.controls.listRow
    required property real wantedHeight
    required property real room

    readonly property bool isEmpty: checklist.view.count === 0
    readonly property real contentHeight: checklist.contentHeight
    /// The item to focus; null if there is nothing to tick.
    readonly property Item focusTarget: isEmpty ? null : checklist.view

    height: Math.min(wantedHeight, Math.max(room, Theme.sheets.checklistLeast * rowHeight))

    Checklist {
        id: checklist

        anchors.fill: parent
        choices: well.choices
        label: well.label
        rowHeight: well.rowHeight
        inList: true
    }
    StyledText {
        anchors.centerIn: parent
        width: parent.width - 2 * Theme.space16
        visible: well.isEmpty
        horizontalAlignment: Text.AlignHCenter
        look: Theme.type.body
        text: well.emptyText
        color: Theme.textFaint
        wrapMode: Text.Wrap
        Accessible.role: Accessible.StaticText
        Accessible.name: text
    }
}
