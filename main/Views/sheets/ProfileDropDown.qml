// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import Selvane

/// Chooses a profile by name. It shows `profileId` and signals a new choice.
DropDown {
    id: dropDown

    required property AppModel app
    required property string profileId ///< empty for none
    property string except ///< id of a profile that isn't offered
    property string noneLabel ///< text for choosing none; empty if that isn't offered

    readonly property ProfileChoices choices: ProfileChoices {
        app: dropDown.app
        except: dropDown.except
        noneLabel: dropDown.noneLabel
        current: dropDown.profileId
    }

    signal picked(string profileId)

    size: DropDown.Large
    labels: dropDown.choices.labels
    currentIndex: dropDown.choices.currentIndex
    onChosen: index => dropDown.picked(dropDown.choices.idAt(index))
}
