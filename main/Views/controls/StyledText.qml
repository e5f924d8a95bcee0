// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import Selvane

/// Text in one of the theme's styles. It is plain text, so a profile's name is never read as markup. It
/// begins at the left whichever way it is written, so that it stays in line with what is above and below.
Text {
    required property TextStyle look

    font: look.font
    color: Theme.text
    lineHeight: look.lineHeight
    lineHeightMode: Text.FixedHeight
    horizontalAlignment: Text.AlignLeft
    verticalAlignment: Text.AlignVCenter
    textFormat: Text.PlainText
}
