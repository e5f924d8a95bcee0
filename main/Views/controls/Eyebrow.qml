// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import Selvane

/// A short label over what follows, in capitals; assistive technology hears the text as it is written.
StyledText {
    look: Theme.type.overline
    color: Theme.textFaint

    Accessible.role: Accessible.StaticText
    Accessible.name: text
    Accessible.focusable: false
}
