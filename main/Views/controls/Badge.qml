// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import Selvane

/// Shows where an item comes from, in colour and in words.
Rectangle {
    id: badge

    enum Kind { Merged, Linked, Own, Broken, Changed }

    required property int kind
    required property string text
    property bool isRowHovered: false

    readonly property color label: {
        switch (badge.kind) {
        case Badge.Own:
            return Theme.textSoft
        case Badge.Broken:
            return Theme.danger
        case Badge.Changed:
            return Theme.lit
        default:
            return Theme.linked
        }
    }

    implicitWidth: Math.ceil(caption.implicitWidth) + 2 * Theme.space8
    implicitHeight: Theme.controls.badgeHeight
    radius: height / 2
    color: {
        switch (badge.kind) {
        case Badge.Merged:
            return Theme.coolSoft
        case Badge.Own:
            return badge.isRowHovered ? Theme.separator : Theme.raised
        case Badge.Broken:
            return Theme.accent2Soft
        case Badge.Changed:
            return Theme.accentSoft
        default:
            return Theme.transparent
        }
    }
    border.width: kind === Badge.Linked ? Theme.hairline : 0
    border.color: Theme.coolLine

    Accessible.role: Accessible.StaticText
    Accessible.name: text

    StyledText {
        id: caption

        anchors.centerIn: parent
        width: Math.min(implicitWidth, badge.width - 2 * Theme.space8)
        look: Theme.type.badge
        text: badge.text
        color: badge.label
        elide: Text.ElideRight
        Accessible.ignored: true
    }
}
