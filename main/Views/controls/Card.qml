// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import Selvane

/// A group of settings or of items.
Rectangle {
    radius: Theme.radiusCard
    color: Theme.surface
    border.width: Theme.hairline
    border.color: Theme.separator
}
