// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import Selvane

/// Asks whether an archive may take the place of the file that is there.
AlertDialog {
    id: alert

    required property string place ///< path

    signal answered(bool replaces)

    title: qsTr("Sostituire «%1»?").arg(alert.place.slice(alert.place.lastIndexOf("/") + 1))
    message: qsTr("In quella cartella c'è già un file con questo nome. Al suo posto andrà il nuovo archivio; "
                  + "il file di ora finirà nel Cestino.")
    confirmText: qsTr("Sostituisci")
    destructive: true
    onConfirmed: answered(true)
    onCancelled: answered(false)
}
