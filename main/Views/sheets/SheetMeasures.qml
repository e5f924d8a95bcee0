// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick

/// The measures of the sheets, and of what else lies over a window.
Measures {
    readonly property real margin: 24
    readonly property real alertWidth: 400
    readonly property real newProfileWidth: 560
    readonly property real importWidth: 480
    readonly property real sessionImportWidth: 560
    readonly property real backupWidth: 480
    readonly property real differencesWidth: 720
    readonly property real differencesHeight: 400
    readonly property real restoreWidth: 560
    readonly property real restoreList: scaled(312) ///< at most
    readonly property real restoreGroup: scaled(32)
    readonly property real restoreGlyph: 26
    readonly property real continuationWidth: 560
    readonly property real continuationWell: scaled(216) ///< at most
    readonly property real organisationLeft: 56
    readonly property real titleGap: 10 ///< from a section's title to its content
    readonly property real checklistRows: 7.5 ///< the most rows shown of a list among others
    readonly property int checklistLeast: 3 ///< the fewest rows shown of a list that shrinks
    readonly property real importRows: 5.5
    readonly property real sessionListHeight: 280
    readonly property real sessionSourceWidth: 200
    readonly property real alertSign: 22
    readonly property real partyWidth: 132 ///< of each of two profiles side by side
    readonly property real partyGlyph: 56
    readonly property real busyWidth: 304 ///< at least
    readonly property real busyMargin: 32 ///< above and below
    readonly property real busySide: 40
    readonly property real busyMark: 56
    readonly property real progressWidth: 400 ///< of the same plate with a bar
    readonly property real progressBar: 320
    readonly property real progressHeight: 8
    readonly property real toastHeight: scaled(40)
    readonly property real toastMargin: 24
}
