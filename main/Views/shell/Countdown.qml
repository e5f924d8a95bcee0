// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import Selvane

/// Counts down while it runs; while it doesn't, keeps what is left.
Timer {
    id: countdown

    required property int duration
    property real passed ///< of the duration; 1 when it has elapsed
    readonly property real left: 1 - passed
    property double last: 0

    signal elapsed

    function begin(): void {
        countdown.passed = 0
        countdown.last = Date.now()
    }

    interval: Theme.motion.countdownInterval
    repeat: true
    onRunningChanged: last = Date.now()
    onTriggered: {
        const now = Date.now()
        countdown.passed = Math.min(1, countdown.passed + (now - countdown.last) / countdown.duration)
        countdown.last = now
        if (countdown.left === 0)
            countdown.elapsed()
    }
}
