// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import Selvane

/// Whether a new profile is isolated from the built-in one's rules.
Column {
    id: choice

    required property NewProfileForm form

    spacing: Theme.sheets.titleGap

    SectionTitle {
        width: parent.width
        text: qsTr("Isolamento")
    }
    ListWell {
        width: parent.width
        height: row.height + 2 * Theme.space12

        IsolationSwitch {
            id: row

            x: Theme.space16
            y: Theme.space12
            width: parent.width - 2 * Theme.space16
            builtInName: choice.form.builtInName
            checked: choice.form.isIsolated
            onToggled: checked => choice.form.isIsolated = checked
        }
    }
}
