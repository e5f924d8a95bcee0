// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma Singleton
pragma ComponentBehavior: Bound

import QtQuick
import Selvane

/// Every colour, type style, measure and duration of the windows, in logical pixels and milliseconds.
QtObject {
    id: theme

    // Settings from the desktop.
    property bool reducedMotion: SystemAppearance.reducedMotion
    property real textScale: SystemAppearance.textScale

    /// Whether the control with the focus shows it.
    readonly property bool showsFocus: focusVisibility.isVisible
    readonly property FocusVisibility focusVisibility: FocusVisibility {}

    // ---- Palette

    readonly property Brand brand: Brand {}
    readonly property HuePalette hues: HuePalette {}

    // ---- Roles: what a palette colour is used for

    readonly property color windowFill: brand.bg
    readonly property color wellFill: brand.bg
    readonly property color surface: brand.bg2
    readonly property color raised: brand.bg3
    readonly property color text: brand.fg
    readonly property color textSoft: brand.fg2
    readonly property color textFaint: brand.fg3
    readonly property color separator: brand.line
    readonly property color controlBorder: brand.lineStrong
    readonly property color lit: brand.accent
    readonly property color focusRing: brand.accent
    readonly property color danger: brand.accent2
    readonly property color linked: brand.cool
    readonly property color switchedOn: brand.cool
    readonly property color onFill: brand.bg
    readonly property color opened: brand.ok

    // ---- Derived colours

    readonly property color accentHover: "#f8c97f"
    readonly property color accentPressed: "#dfa147"
    readonly property color accent2Hover: "#fba9b4"
    readonly property color accent2Pressed: "#df7786"
    readonly property color coolSoft: Qt.alpha(brand.cool, 0.14)
    readonly property color coolLine: Qt.alpha(brand.cool, 0.55)
    readonly property color accentSoft: Qt.alpha(brand.accent, 0.14)
    readonly property color accent2Soft: Qt.alpha(brand.accent2, 0.14)
    readonly property color onFillSoft: Qt.alpha(brand.bg, 0.1)
    readonly property color onFillFaint: Qt.alpha(brand.bg, 0.22)
    readonly property color scrim: Qt.rgba(5 / 255, 8 / 255, 7 / 255, 0.72)
    readonly property color rowHover: Qt.alpha(brand.bg3, 0.55)
    readonly property color transparent: "transparent"
    readonly property real disabledOpacity: 0.4

    // ---- Type

    /// Size of a path inside a sentence, relative to the text around it.
    readonly property real inlinePathSize: 0.92

    readonly property TypeStyles type: TypeStyles { textScale: theme.textScale }

    /// A hint that names one key with ⌘, in the system's own notation: only macOS has that key.
    function keyText(hint: string): string {
        return Qt.platform.os === "osx" ? hint : hint.replace("⌘", "Ctrl+")
    }

    /// The command that shows something in the system's file manager.
    readonly property string revealText: Qt.platform.os === "osx" ? qsTr("Mostra nel Finder")
                                                                  : qsTr("Mostra nella cartella")

    function hasPaths(sentence: string): bool {
        return /(^|[\s(«])~?\/[^\s]/.test(sentence)
    }
    /// Markup (for `Text.RichText`) that sets the paths in a sentence in a font whose tilde doesn't look like
    /// a dash.
    function withPaths(sentence: string, look: TextStyle): string {
        const size = Math.round(look.font.pixelSize * theme.inlinePathSize)
        const plain = sentence.replace(/&/g, "&amp;").replace(/</g, "&lt;").replace(/>/g, "&gt;")
        const style = `font-family:'${theme.brand.monoFamily}'; font-size:${size}px`
        return plain.replace(/(^|[\s(«])(~?\/[^\s,;()«»]*[^\s,;()«».])/g, `$1<span style="${style}">$2</span>`)
    }

    // ---- Spacing, radii, lines

    readonly property real space2: 2
    readonly property real space4: 4
    readonly property real space6: 6
    readonly property real space8: 8
    readonly property real space10: 10
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
    readonly property real glyphTip: 0.08 ///< relative to the side of the glyph

    readonly property real hairline: 1
    readonly property real thickLine: 2
    readonly property real ringGap: 4 ///< from the control to the outer edge of its focus ring
    readonly property real ringTip: 8

    readonly property real iconSmall: 14
    readonly property real iconControl: 16
    readonly property real iconAlone: 18
    readonly property real iconCaret: 12

    readonly property real cardGap: 12

    // ---- Layers

    readonly property int sheetLayer: 10
    readonly property int popoverLayer: 20
    readonly property int toastLayer: 30
    readonly property int alertLayer: 40
    readonly property int busyLayer: 50
    readonly property int toolTipLayer: 60

    // ---- By subject

    readonly property Motion motion: Motion { reducedMotion: theme.reducedMotion }
    readonly property ControlMeasures controls: ControlMeasures { textScale: theme.textScale }
    readonly property SheetMeasures sheets: SheetMeasures { textScale: theme.textScale }
    readonly property PickerMeasures picker: PickerMeasures { textScale: theme.textScale }
    readonly property ManageMeasures manage: ManageMeasures { textScale: theme.textScale }
}
