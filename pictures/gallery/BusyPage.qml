// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import Selvane

BusyOverlay {
    message: "Avvio di Claude con «Lavoro»…"
}
