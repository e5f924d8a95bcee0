// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick

/// The styles that text is set in. All but the picker's title grow with the desktop's text scale.
QtObject {
    id: styles

    required property string displayFamily
    required property string serifFamily
    required property string monoFamily
    required property real textScale

    component Display: TextStyle {
        family: styles.displayFamily
        scale: styles.textScale
    }
    component Serif: TextStyle {
        family: styles.serifFamily
        italic: true
        scale: styles.textScale
    }
    component Mono: TextStyle {
        family: styles.monoFamily
        scale: styles.textScale
    }

    readonly property TextStyle title: Display { scale: 1; size: 68; line: 72; weight: Font.ExtraBold; tracking: -2 }
    readonly property TextStyle titleSerif: Serif { scale: 1; size: 76; line: 72; tracking: -1.1 }
    readonly property TextStyle titleCompact: Display { scale: 1; size: 52; line: 56; weight: Font.ExtraBold; tracking: -1.6 }
    readonly property TextStyle titleSerifCompact: Serif { scale: 1; size: 58; line: 56; tracking: -0.9 }
    readonly property TextStyle nameField: Display { size: 26; line: 32; weight: Font.ExtraBold; tracking: -0.5 }
    readonly property TextStyle emptyTitle: Display { size: 24; line: 32; weight: Font.ExtraBold; tracking: -0.5 }
    readonly property TextStyle sheetTitle: Display { size: 20; line: 28; weight: Font.ExtraBold; tracking: -0.3 }
    readonly property TextStyle wordmark: Display { size: 19; line: 20; weight: Font.ExtraBold; tracking: -0.4 }
    readonly property TextStyle tagline: Serif { size: 16; line: 18 }
    readonly property TextStyle tileName: Display { size: 18; line: 24; weight: Font.ExtraBold; tracking: -0.27 }
    readonly property TextStyle alertTitle: Display { size: 17; line: 24; weight: Font.ExtraBold; tracking: -0.17 }
    readonly property TextStyle busyMessage: Display { size: 15; line: 24; weight: Font.DemiBold }
    readonly property TextStyle sectionTitle: Display { size: 14; line: 20; weight: Font.DemiBold }
    readonly property TextStyle rowName: Display { size: 14; line: 18; weight: Font.DemiBold }
    readonly property TextStyle launchLabel: Display { size: 14; line: 20; weight: Font.DemiBold }
    readonly property TextStyle confirmLabel: Display { size: 13; line: 20; weight: Font.DemiBold }
    readonly property TextStyle smallConfirm: Display { size: 12; line: 16; weight: Font.DemiBold }
    readonly property TextStyle subtitle: Display { size: 15; line: 24 }
    readonly property TextStyle field: Display { size: 14; line: 20 }
    readonly property TextStyle body: Display { size: 13; line: 20 }
    readonly property TextStyle summary: Display { size: 13; line: 18 }
    readonly property TextStyle control: Display { size: 13; line: 16; weight: Font.Medium }
    readonly property TextStyle menuLabel: Display { size: 13; line: 18; weight: Font.Medium }
    readonly property TextStyle notice: Display { size: 13; line: 20; weight: Font.Medium }
    readonly property TextStyle noticeAction: Display { size: 13; line: 20; weight: Font.DemiBold }
    readonly property TextStyle smallControl: Display { size: 12; line: 16; weight: Font.Medium }
    readonly property TextStyle status: Display { size: 12; line: 20; weight: Font.Medium }
    readonly property TextStyle small: Display { size: 12; line: 16 }
    readonly property TextStyle fieldLabel: Display { size: 12; line: 16; weight: Font.Medium }
    readonly property TextStyle headerLabel: Display { size: 11; line: 16 }
    readonly property TextStyle badge: Display { size: 11; line: 16; weight: Font.Medium }
    readonly property TextStyle overline: Mono {
        size: 11
        line: 16
        weight: Font.Medium
        tracking: 0.9
        capitalization: Font.AllUppercase
    }
    readonly property TextStyle path: Mono { size: 12; line: 16 }
    readonly property TextStyle listPath: Mono { size: 11; line: 16 }
    readonly property TextStyle digit: Mono { size: 11; line: 20; weight: Font.Medium }
    readonly property TextStyle keyCap: Mono { size: 11; line: 16; weight: Font.Medium }
}
