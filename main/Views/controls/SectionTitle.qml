// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import Selvane

/// Heads a part of a sheet, or a card.
StyledText {
    look: Theme.type.sectionTitle
    elide: Text.ElideRight
    Accessible.role: Accessible.Heading
    Accessible.name: text
}
