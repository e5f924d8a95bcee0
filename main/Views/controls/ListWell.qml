// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import Selvane

/// A sunken field for rows. Its rounded corners clip the content.
Item {
    id: well

    default property alias content: inside.data
    property color outside: Theme.surface ///< the colour around the well

    Rectangle {
        id: inside

        anchors.fill: parent
        radius: Theme.radiusCard
        color: Theme.wellFill
        clip: true
    }
    RoundedFrame {
        anchors.fill: parent
        radius: Theme.radiusCard
        color: Theme.separator
        outside: well.outside
    }
}
