// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick

/// The measures of buttons, fields, menus and other controls.
Measures {
    readonly property real rowTarget: scaled(28) ///< the least height of anything that can be pressed
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
    readonly property real launchPadding: 20
    readonly property real confirmPadding: 18
    readonly property real fieldWidth: 240
    readonly property real labelGap: 6 ///< from a field's label to the field
    readonly property real mark: 16 ///< of a check box or a radio button
    readonly property real tick: 12 ///< in a check box
    readonly property real radioRing: 5
    readonly property real switchWidth: 34
    readonly property real switchHeight: 20
    readonly property real switchKnob: 12
    readonly property real switchInset: 4 ///< from the knob to the end
    readonly property real lockupMark: 36
    readonly property real halfSymbol: 40 ///< from this size on a profile's symbol takes half of its leaf
    readonly property real gridCell: 40
    readonly property real gridIcon: 20
    readonly property real colorCell: 28
    readonly property real menuPadding: 6
    readonly property real menuWidth: 320
    readonly property real modeWidth: 128
    readonly property real chipWidth: 200 ///< of a drop-down among filters, at most
    readonly property real scrollBarWidth: 4
    readonly property real scrollBarInset: 6
}
