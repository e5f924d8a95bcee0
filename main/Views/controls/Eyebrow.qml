// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import Selvane

/// A short label in capitals above what it introduces. Assistive technology gets the text as written.
StyledText {
    look: Theme.type.overline
    color: Theme.textFaint

    Accessible.role: Accessible.StaticText
    Accessible.name: text
    Accessible.focusable: false
}
