// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import Selvane

/// Whether a profile is isolated from the built-in one, and what that means.
SwitchRow {
    required property string builtInName

    text: qsTr("Tieni fuori le regole di «%1»").arg(builtInName)
    detail: qsTr("Quando lavori in una cartella sotto la home, Claude Code legge anche ~/.claude/CLAUDE.md e "
                 + "~/.claude/rules. Così restano fuori.")
}
