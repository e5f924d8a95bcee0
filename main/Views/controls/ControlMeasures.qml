// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick

/// The measures of buttons, fields, menus and other controls.
Measures {
    readonly property real rowTarget: scaled(28) ///< at least, for whatever can be pressed
    readonly property real listRow: scaled(40) ///< of a check box in a list
    readonly property real pathRow: scaled(52) ///< with a path below the text
    readonly property real switchRow: scaled(24) ///< at least
    readonly property real smallHeight: scaled(28)
    readonly property real height: scaled(32)
    readonly property real largeHeight: scaled(36)
    readonly property real launchHeight: scaled(40)
    readonly property real badgeHeight: scaled(20)
    readonly property real keyCapHeight: scaled(20)
    readonly property real keyCapWidth: scaled(24) ///< at least
    readonly property real keyCapIcon: scaled(12)
    readonly property real toastHeight: scaled(40)
    readonly property real gridCell: 40
    readonly property real gridIcon: 20
    readonly property real menuWidth: 320
    readonly property real modeWidth: 128
    readonly property real scrollBarWidth: 4
}
