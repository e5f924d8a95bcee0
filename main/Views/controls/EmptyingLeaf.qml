// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import Selvane

/// A leaf that empties from top to bottom. With reduced motion it does so in four steps.
Item {
    id: leaf

    required property real filled ///< from 1 to 0

    readonly property real shown: Theme.reducedMotion ? Math.ceil(filled * Theme.motion.countdownSteps) / Theme.motion.countdownSteps
                                                      : filled

    implicitWidth: Theme.iconAlone
    implicitHeight: Theme.iconAlone

    LeafShape {
        anchors.fill: parent
        tip: Theme.glyphTip * leaf.width
        color: Theme.onFillFaint
    }
    Item {
        anchors.bottom: parent.bottom
        width: parent.width
        height: leaf.height * leaf.shown
        clip: true

        LeafShape {
            anchors.bottom: parent.bottom
            width: leaf.width
            height: leaf.height
            tip: Theme.glyphTip * leaf.width
            color: Theme.onFill
        }
    }
}
