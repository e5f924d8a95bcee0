// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import Selvane

/// A button in the tool bar: with its title, or only its icon and the title as help.
GhostButton {
    id: button

    required property string title
    required property bool isIconAlone
    property string explanation

    bare: true
    size: isIconAlone ? GhostButton.Medium : GhostButton.Small
    text: isIconAlone ? "" : title
    label: title
    help: isIconAlone ? title : explanation

    Accessible.description: explanation
}
