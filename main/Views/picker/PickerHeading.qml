// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import Selvane

/// The picker's question.
Item {
    id: heading

    required property PickerPlaces places
    required property real indent
    required property bool isCompact
    required property bool isSearching ///< what is typed takes the place of the subtitle

    Eyebrow {
        x: heading.indent
        y: heading.places.overline
        text: qsTr("Scegli un profilo")
    }
    PickerQuestion {
        x: heading.indent - Theme.picker.opticalMargin
        y: heading.places.title
        isCompact: heading.isCompact
    }
    StyledText {
        x: heading.indent
        y: heading.places.subtitle
        visible: !heading.isSearching
        look: Theme.type.subtitle
        text: qsTr("Ogni profilo ha il suo account, le sue skill e le sue regole.")
        color: Theme.textSoft
        Accessible.role: Accessible.StaticText
        Accessible.name: text
    }
}
