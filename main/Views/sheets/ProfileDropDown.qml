// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import Selvane

/// One of the profiles, by name. It shows `profileId` and asks for another one.
DropDown {
    id: dropDown

    required property AppModel app
    required property string profileId ///< empty for none
    property string except ///< id of a profile that isn't offered
    property string noneLabel ///< text of the choice of none; empty: there is no such choice

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
