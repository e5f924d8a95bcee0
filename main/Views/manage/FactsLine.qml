// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import Selvane

/// Facts about the profile in small print, on as many lines as they need.
Flow {
    id: line

    required property AppModel app

    spacing: Theme.space4 // between lines, too

    component Fact: Row {
        id: fact

        property alias icon: sign.name
        required property string text

        visible: text !== ""
        spacing: Theme.space6
        rightPadding: Theme.space16

        Accessible.role: Accessible.StaticText
        Accessible.name: text

        PathIcon {
            id: sign

            anchors.verticalCenter: parent.verticalCenter
            size: Theme.iconSmall
            weight: PathIcon.Regular
            color: Theme.textFaint
        }
        StyledText {
            width: Math.min(implicitWidth, line.width - sign.width - fact.spacing)
            look: Theme.type.small
            text: fact.text
            color: Theme.textSoft
            elide: Text.ElideRight
            Accessible.ignored: true
        }
    }

    ProfileFacts {
        id: facts

        app: line.app
    }
    Fact {
        icon: "user-circle"
        text: facts.signIn
    }
    Fact {
        icon: "users"
        text: facts.sameAddress
    }
    Fact {
        icon: "hard-drive"
        text: facts.size
    }
    Fact {
        icon: "calendar-blank"
        text: facts.created
    }
}
