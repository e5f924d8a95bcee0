// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma Singleton
pragma ComponentBehavior: Bound

import QtQuick
import Selvane

/// Every colour, type style, measure and duration of the windows, in logical pixels and milliseconds.
QtObject {
    id: theme

    // What the system asks for; the application sets them.
    property bool reducedMotion: false
    property real textScale: 1

    /// Whether the control that has the focus shows it.
    readonly property bool showsFocus: focusVisibility.isVisible
    readonly property FocusVisibility focusVisibility: FocusVisibility {}

    // ---- Palette

    readonly property Brand brand: Brand {}

    readonly property color bg: brand.bg
    readonly property color bg2: brand.bg2
    readonly property color bg3: brand.bg3
    readonly property color fg: brand.fg
    readonly property color fg2: brand.fg2
    readonly property color fg3: brand.fg3
    readonly property color line: brand.line
    readonly property color lineStrong: brand.lineStrong
    readonly property color accent: brand.accent
    readonly property color accent2: brand.accent2
    readonly property color cool: brand.cool
    readonly property color ok: brand.ok

    // ---- Roles: what a palette colour is used for

    readonly property color windowFill: bg
    readonly property color wellFill: bg
    readonly property color surface: bg2
    readonly property color raised: bg3
    readonly property color text: fg
    readonly property color textSoft: fg2
    readonly property color textFaint: fg3
    readonly property color separator: line
    readonly property color controlBorder: lineStrong
    readonly property color lit: accent
    readonly property color focusRing: accent
    readonly property color danger: accent2
    readonly property color linked: cool
    readonly property color switchedOn: cool
    readonly property color onFill: bg
    readonly property color opened: ok

    // ---- Derived colours

    readonly property color accentHover: "#f8c97f"
    readonly property color accentPressed: "#dfa147"
    readonly property color accent2Hover: "#fba9b4"
    readonly property color accent2Pressed: "#df7786"
    readonly property color coolSoft: Qt.alpha(cool, 0.14)
    readonly property color coolLine: Qt.alpha(cool, 0.55)
    readonly property color accent2Soft: Qt.alpha(accent2, 0.14)
    readonly property color scrim: Qt.rgba(5 / 255, 8 / 255, 7 / 255, 0.72)
    readonly property color rowHover: Qt.alpha(bg3, 0.55)
    readonly property color transparent: "transparent"
    readonly property real disabledOpacity: 0.4

    // ---- Type

    readonly property string displayFamily: brand.displayFamily
    readonly property string serifFamily: brand.serifFamily
    readonly property string monoFamily: brand.monoFamily
    /// Of a path inside a sentence, to the size around it.
    readonly property real inlinePathSize: 0.92

    component Display: TextStyle {
        family: theme.displayFamily
        scale: theme.textScale
    }
    component Serif: TextStyle {
        family: theme.serifFamily
        italic: true
        scale: theme.textScale
    }
    component Mono: TextStyle {
        family: theme.monoFamily
        scale: theme.textScale
    }

    readonly property TextStyle title: Display { size: 68; line: 72; weight: Font.ExtraBold; tracking: -2 }
    readonly property TextStyle titleSerif: Serif { size: 76; line: 72; tracking: -1.1 }
    readonly property TextStyle titleCompact: Display { size: 52; line: 56; weight: Font.ExtraBold; tracking: -1.6 }
    readonly property TextStyle titleSerifCompact: Serif { size: 58; line: 56; tracking: -0.9 }
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
    readonly property TextStyle subtitle: Display { size: 15; line: 24 }
    readonly property TextStyle field: Display { size: 14; line: 20 }
    readonly property TextStyle body: Display { size: 13; line: 20 }
    readonly property TextStyle summary: Display { size: 13; line: 18 }
    readonly property TextStyle control: Display { size: 13; line: 16; weight: Font.Medium }
    readonly property TextStyle menuLabel: Display { size: 13; line: 18; weight: Font.Medium }
    readonly property TextStyle notice: Display { size: 13; line: 20; weight: Font.Medium }
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

    /// A hint as this system writes it: ⌘ stands on macOS alone.
    function keyText(hint: string): string {
        return Qt.platform.os === "osx" ? hint : hint.replace(/⌘/g, "Ctrl+")
    }

    /// Markup (for `Text.RichText`) that sets the paths in a sentence in a face whose tilde isn't a dash.
    function withPaths(sentence: string, look: TextStyle): string {
        const size = Math.round(look.font.pixelSize * theme.inlinePathSize)
        const plain = sentence.replace(/&/g, "&amp;").replace(/</g, "&lt;").replace(/>/g, "&gt;")
        const style = `font-family:'${theme.monoFamily}'; font-size:${size}px`
        return plain.replace(/~?\/[^\s,;()«»]+/g, path => `<span style="${style}">${path}</span>`)
    }

    /// A measure that grows with the text: heights of whatever holds a line of it.
    function scaled(measure: real): real {
        return Math.round(measure * theme.textScale)
    }

    // ---- Spacing, radii, lines

    readonly property real space4: 4
    readonly property real space8: 8
    readonly property real space12: 12
    readonly property real space16: 16
    readonly property real space20: 20
    readonly property real space24: 24
    readonly property real space36: 36

    readonly property real radiusSmall: 4
    readonly property real radiusControl: 8
    readonly property real radiusCard: 12
    readonly property real radiusSheet: 16
    readonly property real radiusTile: 20
    readonly property real radiusKeyCap: 5
    readonly property real buttonTip: 4
    readonly property real glyphTip: 0.08 ///< to the side of the glyph

    readonly property real hairline: 1
    readonly property real thickLine: 2
    readonly property real ringGap: 4 ///< from the control to the outer edge of its focus ring
    readonly property real ringTip: 8

    // ---- Controls

    readonly property real rowTarget: scaled(28) ///< at least, for whatever can be pressed
    readonly property real smallHeight: scaled(28)
    readonly property real controlHeight: scaled(32)
    readonly property real sheetControlHeight: scaled(36)
    readonly property real launchHeight: scaled(40)
    readonly property real badgeHeight: scaled(20)
    readonly property real keyCapHeight: scaled(20)
    readonly property real toastHeight: scaled(40)
    readonly property real iconSmall: 14
    readonly property real iconControl: 16
    readonly property real iconAlone: 18
    readonly property real iconCaret: 12
    readonly property real gridCell: 40
    readonly property real gridIcon: 20
    readonly property real menuWidth: 320
    readonly property real modeWidth: 128
    readonly property real scrollBarWidth: 4

    // ---- Windows, sheets and layers

    readonly property real pickerMargin: 36
    readonly property real pickerMarginCompact: 24
    readonly property real detailMargin: 24
    readonly property real cardGap: 12
    readonly property real sheetMargin: 24
    readonly property real alertWidth: 400
    readonly property real newProfileWidth: 560
    readonly property real importWidth: 480
    readonly property real sessionImportWidth: 560
    readonly property real backupWidth: 480
    readonly property real busyWidth: 304
    readonly property real toastMargin: 24

    readonly property int sheetLayer: 10
    readonly property int popoverLayer: 20
    readonly property int toastLayer: 30
    readonly property int alertLayer: 40
    readonly property int busyLayer: 50
    readonly property int toolTipLayer: 60

    // ---- Picker and its tiles

    readonly property size pickerWindow: Qt.size(980, 660)
    readonly property size pickerMinimum: Qt.size(720, 560)
    readonly property real pickerFullWidth: 900 ///< below one of these the compact measures apply
    readonly property real pickerFullHeight: 620
    readonly property real pickerColumn: 1160
    readonly property real pickerBar: 40
    readonly property real pickerSpareAbove: 0.45
    readonly property real opticalMargin: 3 ///< moves the title's C to where it looks aligned
    readonly property real foliageTop: 108
    /// Distances from the top, the footer's from the bottom; `height` is what they are drawn for.
    readonly property var pickerFull: ({
        height: 660, margin: pickerMargin, bar: 24, overline: 112, title: 132, subtitle: 216, tiles: 276, footer: 32
    })
    readonly property var pickerCompact: ({
        height: 560, margin: pickerMarginCompact, bar: 20, overline: 88, title: 108, subtitle: 172, tiles: 228, footer: 24
    })
    readonly property real tileWidth: 184
    readonly property real tileHeight: 272
    readonly property real tileHeightCompact: 256
    readonly property real tileGlyph: 80
    readonly property real tileGear: 28
    readonly property real tileGearMargin: 10
    readonly property real tileNameTop: 116
    readonly property real tileSummaryTop: 144
    readonly property real tileBadgeBottom: 48
    readonly property real statusDot: 8
    readonly property real addTileWidth: 124
    readonly property real addLeaf: 56
    readonly property real addIcon: 24
    readonly property real leafOutline: 1.5
    readonly property list<real> seatOpacities: [1, 0.62, 0.28]
    readonly property real stripSpare: 12 ///< so that scale, ring and shadow of a tile are not cut
    readonly property real stripEdge: 48

    // ---- Motion: nothing moves or grows with reduced motion, and fades are short

    readonly property real focusedScale: 1.04
    readonly property real pressedScale: 0.97
    readonly property int tileFocus: moving(140)
    readonly property int tilePress: moving(100)
    readonly property int stripScroll: moving(180)
    readonly property int hover: fading(120)
    readonly property int toggle: moving(120)
    readonly property int menuIn: fading(120)
    readonly property int menuOut: fading(80)
    readonly property int sheetIn: fading(180)
    readonly property int sheetOut: fading(120)
    readonly property int toastIn: fading(200)
    readonly property int toastOut: fading(160)
    readonly property int busyFade: fading(150)
    readonly property int busyCross: 900
    readonly property int toolTipDelay: 600
    readonly property real menuSlide: reducedMotion ? 0 : 4
    readonly property real sheetSlide: reducedMotion ? 0 : 8
    readonly property real toastSlide: reducedMotion ? 0 : 12

    function moving(duration: int): int {
        return theme.reducedMotion ? 0 : duration
    }
    function fading(duration: int): int {
        return theme.reducedMotion ? Math.min(duration, 80) : duration
    }
}
