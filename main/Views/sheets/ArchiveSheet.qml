// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import Selvane

/// Asks where to save an archive, or where one is, if the desktop has no dialog for that.
Sheet {
    id: sheet

    required property string place ///< the proposed path
    property bool isThere: false ///< it is asked for an archive that is there

    signal chosen(string place) ///< as typed; empty if cancelled

    title: isThere ? qsTr("Scegli un backup di Selvane") : qsTr("Salva il backup")
    confirmText: isThere ? qsTr("Apri") : qsTr("Salva")
    confirmEnabled: field.text.trim() !== ""
    firstFocus: field
    onConfirmed: chosen(field.text)
    onCancelled: chosen("")

    TextInputField {
        id: field

        width: parent.width
        label: qsTr("File")
        text: sheet.place
    }
}
