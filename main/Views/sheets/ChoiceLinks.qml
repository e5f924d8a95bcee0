// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import Selvane

/// Links that tick all choices or none.
Row {
    id: links

    required property ChoiceListModel choices
    required property string allText
    required property string noneText
    property string subject ///< distinguishes the links of several lists in their accessible names

    function named(text: string): string {
        return links.subject === "" ? text : links.subject + ": " + text
    }

    spacing: Theme.space12

    TextLink {
        text: links.allText
        label: links.named(text)
        onClicked: links.choices.chooseAll()
    }
    TextLink {
        text: links.noneText
        label: links.named(text)
        onClicked: links.choices.chooseNone()
    }
}
