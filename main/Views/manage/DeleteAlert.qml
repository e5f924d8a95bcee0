// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import Selvane

/// Asks before a profile is moved to the Trash.
AlertDialog {
    required property ProfileDetailModel profile
    required property string profileId

    message: qsTr("La cartella del profilo con skill, regole, sessioni e memoria verrà spostata nel Cestino.")
    confirmText: qsTr("Sposta nel Cestino")
    destructive: true
    onConfirmed: profile.remove(profileId)
}
