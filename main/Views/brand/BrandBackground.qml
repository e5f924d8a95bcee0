// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import Selvane

/// The background of a window. Fills its parent.
Rectangle {
    anchors.fill: parent
    color: Theme.windowFill
}
