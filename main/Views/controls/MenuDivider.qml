// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import Selvane

/// A line between entries of a menu.
Item {
    implicitWidth: 1
    implicitHeight: 2 * 6 + Theme.hairline

    Accessible.role: Accessible.Separator

    Rectangle {
        y: 6
        width: parent.width
        height: Theme.hairline
        color: Theme.separator
    }
}
