// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import Selvane

AlertDialog {
    title: "Errore"
    message: "L'account di «Lavoro» è già aperto in Claude: chiudilo prima."
    cancelText: ""
    isError: true
}
