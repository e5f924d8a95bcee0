// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import Selvane

/// A mark in a profile's row, explained by its help. The row itself tells assistive technology what it means.
Pressable {
    id: mark

    property string symbol

    tabStop: false
    implicitWidth: Theme.iconSmall
    implicitHeight: Theme.controls.rowTarget

    Accessible.ignored: true

    PathIcon {
        anchors.centerIn: parent
        visible: mark.symbol !== ""
        symbol: mark.symbol
        size: Theme.iconSmall
        weight: PathIcon.Regular
        color: Theme.textFaint
    }
}
