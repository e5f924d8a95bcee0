// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import Selvane

/// What is checked or not: a check box, a switch, a radio button. It shows `checked`; whoever owns the value changes
/// it when it is clicked.
Pressable {
    id: choice

    required property bool checked

    answersReturn: false
    takesFocusOnClick: true
    opacity: available ? 1 : Theme.disabledOpacity

    Accessible.role: Accessible.CheckBox
    Accessible.checkable: true
    Accessible.checked: checked
    Accessible.onToggleAction: {
        if (choice.enabled)
            choice.clicked()
    }
}
