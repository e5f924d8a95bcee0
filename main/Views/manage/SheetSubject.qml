// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import Selvane

/// The profile that a sheet is about. Another program may remove it meanwhile.
ProfileChoices {
    id: subject

    property string name ///< the last known
    property bool isOver: true ///< whether the sheet is closed

    signal gone

    /// `id` may be empty, for a sheet that is about none.
    function begin(id: string): void {
        subject.current = id
        subject.name = subject.labels[subject.currentIndex] ?? ""
    }

    onChanged: {
        if (!subject.isOver && subject.name !== "" && subject.currentIndex < 0)
            subject.gone()
    }
}
