// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import Selvane

/// A line between menu entries.
Item {
    implicitWidth: Theme.hairline
    implicitHeight: 2 * Theme.space6 + Theme.hairline

    Accessible.role: Accessible.Separator

    Rectangle {
        y: Theme.space6
        width: parent.width
        height: Theme.hairline
        color: Theme.separator
    }
}
