// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import Selvane

/// The content of a profile's tile. Assistive technology gets it from the tile itself.
Item {
    id: label

    required property string name
    required property string summary
    required property profileLook look
    required property list<int> foundInName
    required property list<int> foundInSummary
    required property string status
    required property bool isActive ///< launched last
    required property int position
    required property bool isRunning
    required property bool wasLaunched
    required property bool hasOwnAccount
    required property bool isFocused
    required property bool isCompact
    required property bool hasDigit
    readonly property int digitKeys: 9 ///< only these profiles have a key of their own

    Accessible.ignored: true

    ProfileGlyph {
        size: Theme.picker.tileGlyph
        x: Theme.space16
        y: Theme.space16
        look: label.look
        isLit: label.isFocused
        isFramed: false // the tile is
    }
    FoundText {
        anchors { left: parent.left; right: parent.right; margins: Theme.space16 }
        y: Theme.picker.tileNameTop
        found: label.foundInName
        look: Theme.type.tileName
        text: label.name
        elide: Text.ElideRight
        Accessible.ignored: true
    }
    FoundText {
        readonly property int lines: label.isCompact && label.hasOwnAccount ? 2 : 3
        readonly property bool hasPath: Theme.hasPaths(label.summary)

        x: Theme.space16
        y: Theme.picker.tileSummaryTop
        width: label.width - 2 * Theme.space16
        // Only plain text can be limited to a number of lines.
        height: Math.min(implicitHeight, lines * look.lineHeight)
        clip: hasPath
        look: Theme.type.summary
        found: hasPath ? [] : label.foundInSummary
        text: hasPath ? Theme.withPaths(label.summary, look) : label.summary
        textFormat: hasPath ? Text.RichText : Text.PlainText
        color: Theme.textSoft
        wrapMode: Text.Wrap
        maximumLineCount: lines
        elide: Text.ElideRight
        Accessible.ignored: true
    }
    // What few tiles have isn't even made for the others, of which a search may show many at once.
    Repeater {
        model: label.hasOwnAccount ? 1 : 0

        delegate: AccountMark {
            anchors { left: label.left; bottom: label.bottom; leftMargin: Theme.space16; bottomMargin: Theme.picker.tileBadgeBottom }
        }
    }
    Row {
        anchors { left: parent.left; bottom: parent.bottom; margins: Theme.space16 }
        spacing: label.isActive ? Theme.space4 : Theme.space8

        Repeater {
            model: label.isActive ? 1 : 0

            delegate: LastMark {}
        }
        Rectangle {
            anchors.verticalCenter: parent.verticalCenter
            visible: label.isRunning && !label.isActive
            width: Theme.picker.statusDot
            height: Theme.picker.statusDot
            radius: Theme.picker.statusDot / 2
            color: Theme.opened
        }
        StyledText {
            look: Theme.type.status
            text: label.status
            color: label.isRunning ? Theme.opened : label.wasLaunched ? Theme.textSoft : Theme.textFaint
            Accessible.ignored: true
        }
    }
    StyledText {
        anchors { right: parent.right; bottom: parent.bottom; margins: Theme.space16 }
        visible: label.hasDigit && label.position <= label.digitKeys
        look: Theme.type.digit
        text: label.position
        color: Theme.textFaint
        Accessible.ignored: true
    }
}
