// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick

/// Measures of one part of the windows, in logical pixels.
QtObject {
    id: measures

    required property real textScale

    /// A measure that grows with the text: the height of whatever holds a line of it.
    function scaled(measure: real): real {
        return Math.round(measure * measures.textScale)
    }
}
