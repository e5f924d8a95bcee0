// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import Selvane

/// The heading of a card or of a part of a sheet.
StyledText {
    look: Theme.type.sectionTitle
    elide: Text.ElideRight
    Accessible.role: Accessible.Heading
    Accessible.name: text
}
