// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import QtTest
import Selvane

TestCase {
    id: test

    name: "Theme"

    TextMetrics { id: light; font: Theme.type.body.font; text: "Chi usa" }
    TextMetrics { id: heavy; font.family: light.font.family; font.pixelSize: light.font.pixelSize; font.weight: Font.ExtraBold; text: light.text }

    function test_fontsAreThereInTheirWeights() {
        const families = Qt.fontFamilies()
        for (const family of [Theme.brand.displayFamily, Theme.brand.serifFamily, Theme.brand.monoFamily])
            verify(families.includes(family), family)
        verify(heavy.advanceWidth > light.advanceWidth)
    }

    function test_pathsAreSetApart_data() {
        return [
            { tag: "in brackets", sentence: "Claude (~/.claude)", path: "~/.claude", rest: "Claude ()" },
            { tag: "two", sentence: "~/.claude, ~/.claude.json e dati", path: "~/.claude", rest: ", e dati" },
            { tag: "no path", sentence: "prove e/o progetti", path: "", rest: "prove e/o progetti" },
            { tag: "markup", sentence: "<b> & altro", path: "", rest: "&lt;b&gt; &amp; altro" }
        ]
    }
    function test_pathsAreSetApart(row) {
        const markup = Theme.withPaths(row.sentence, Theme.type.body)
        compare(markup.replace(/<span[^>]*>[^<]*<\/span> ?/g, ""), row.rest)
        compare((/<span[^>]*>([^<]*)</.exec(markup) ?? ["", ""])[1], row.path)
    }

    function test_reducedMotionLeavesNoMovement() {
        Theme.reducedMotion = true
        compare([Theme.motion.tileFocus, Theme.motion.toggle, Theme.motion.sheetSlide], [0, 0, 0])
        verify(Theme.motion.sheetIn > 0 && Theme.motion.sheetIn <= 80)
        Theme.reducedMotion = false
    }
}
