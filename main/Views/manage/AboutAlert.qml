// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import Selvane

/// Whose work Selvane is.
AlertDialog {
    message: qsTr("Profili di Claude Desktop e Claude Code. © 2026 The Selvane developers, licenza MIT.\n\n"
                  + "Caratteri, sotto la SIL Open Font License 1.1: Bricolage Grotesque e Instrument Serif "
                  + "(© 2022) e JetBrains Mono (© 2020), dei rispettivi Project Authors. Icone, sotto la "
                  + "licenza MIT: Phosphor (© 2023 Phosphor Icons).\n\n"
                  + "I testi delle licenze sono installati con Selvane.")
    cancelText: ""
}
