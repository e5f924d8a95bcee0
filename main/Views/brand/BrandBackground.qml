// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import Selvane

/// The ground of a window. Fills its parent.
Rectangle {
    anchors.fill: parent
    color: Theme.windowFill
}
