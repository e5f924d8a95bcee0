// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import Selvane

Toast {
    text: "Aggiunti 2, rimossi 1 collegamenti"
}
