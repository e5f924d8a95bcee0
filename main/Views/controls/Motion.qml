// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick

/// How long things take to change, in milliseconds, and how far they move. With reduced motion nothing moves or
/// grows, and fades are short.
QtObject {
    id: motion

    required property bool reducedMotion

    readonly property real focusedScale: 1.04
    readonly property real pressedScale: 0.97
    readonly property int tileFocus: moving(140)
    readonly property int tilePress: moving(100)
    readonly property int stripScroll: moving(180)
    readonly property int tileFade: moving(120) ///< a tile that comes or goes
    readonly property int tileMove: moving(180) ///< the others, which close up or make room
    readonly property int hover: fading(120)
    readonly property int toggle: moving(120)
    readonly property int menuIn: fading(120)
    readonly property int menuOut: fading(80)
    readonly property int sheetIn: fading(180)
    readonly property int sheetOut: fading(120)
    readonly property int toastIn: fading(200)
    readonly property int toastOut: fading(160)
    readonly property int savedIn: fading(120)
    readonly property int savedOut: fading(160)
    readonly property int savedDuration: 1600
    readonly property int busyFade: fading(150)
    readonly property int busyCross: 900
    readonly property int busyDelay: 200 ///< before quick work is shown at all
    readonly property int busyLeast: 400 ///< so that it doesn't flash
    readonly property int noticeDuration: 2500
    readonly property int offerDuration: 8000 ///< of a notice whose action can be chosen
    readonly property int lookAgain: 1000 ///< at what changes without a word
    readonly property int countdownSteps: 4 ///< with reduced motion
    readonly property int countdownInterval: 40
    readonly property int toolTipDelay: 600
    readonly property real menuSlide: reducedMotion ? 0 : 4
    readonly property real sheetSlide: reducedMotion ? 0 : 8
    readonly property real toastSlide: reducedMotion ? 0 : 12

    function moving(duration: int): int {
        return motion.reducedMotion ? 0 : duration
    }
    function fading(duration: int): int {
        return motion.reducedMotion ? Math.min(duration, 80) : duration
    }
}
