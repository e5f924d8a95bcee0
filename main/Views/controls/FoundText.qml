// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import Selvane

/// A text in which letters that were found can be underlined.
StyledText {
    id: shown

    property list<int> found ///< start and length of each part that was
    property MatchLines lines: null ///< created when first needed

    onFoundChanged: {
        if (shown.found.length > 0 && !shown.lines)
            shown.lines = linesComponent.createObject(shown) as MatchLines
    }

    Component {
        id: linesComponent

        MatchLines {
            anchors.fill: parent
            visible: shown.found.length > 0
            text: shown.text
            font: shown.font
            lineHeight: shown.look.lineHeight
            wraps: shown.wrapMode !== Text.NoWrap
            ranges: shown.found
            thickness: Theme.thickLine
            color: Theme.controlBorder
        }
    }
}
