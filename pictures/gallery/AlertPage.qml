// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import Selvane

AlertDialog {
    title: "Account già aperto in Claude"
    message: "«Principale» usa lo stesso account Claude ed è aperto: per avviare «Lavoro» va chiuso. Le sessioni in corso verranno interrotte."
    confirmText: "Chiudi e riapri"
}
