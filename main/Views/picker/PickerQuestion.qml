// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import Selvane

/// The picker's heading, in two typefaces.
Row {
    id: heading

    required property bool isCompact

    Accessible.role: Accessible.Heading
    Accessible.name: qsTr("Chi usa Claude?")

    StyledText {
        id: question

        look: heading.isCompact ? Theme.type.titleCompact : Theme.type.title
        text: qsTr("Chi usa ")
        Accessible.ignored: true
    }
    StyledText {
        anchors.baseline: question.baseline
        look: heading.isCompact ? Theme.type.titleSerifCompact : Theme.type.titleSerif
        text: qsTr("Claude?")
        color: Theme.lit
        Accessible.ignored: true
    }
}
