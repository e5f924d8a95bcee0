// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import QtTest
import Selvane
import SelvaneTest

Item {
    id: scene

    width: 900
    height: 700

    TestHome { id: home }
    Component { id: sheets; ManageSheets { anchors.fill: parent; app: home.app } }

    SheetTestCase {
        id: test

        name: "RestoreSheet"

        property ManageSheets layers: null

        function init(): void {
            home.begin()
        }
        /// Saves the home, changes it, and opens the sheet as the button in the backup sheet does.
        function openRestore(): void {
            failOnWarning(/./)
            home.write(".claude/CLAUDE.md", "old")
            home.makeProfile("Lavoro")
            home.answerArchive("b.zip")
            layers = createTemporaryObject(sheets, scene)
            layers.backUp()
            keyClick(Qt.Key_Return)
            tryVerify(() => home.what("b.zip") !== "")
            tryVerify(() => home.app.busyMessage === "" && !layers.isOpen)
            home.write(".claude/CLAUDE.md", "new")
            home.remove(".claude-profiles/lavoro")
            home.app.reload()
            layers.backUp()
            test.sheet = layers.current
            tabTo("Ripristina…")
            press(Qt.Key_Space)
            tryVerify(() => layers.current instanceof RestoreSheet)
            test.sheet = layers.current
            settle()
        }

        function test_onlyTheChosenPartsAreRestored(): void {
            openRestore()
            verify(shows("b.zip"))
            compare(sheet.form.parts.total, sheet.form.parts.chosenCount)
            verify(sheet.remark.includes("nel Cestino"))
            tabTo("Prova soltanto")
            press(Qt.Key_Space)
            tryVerify(() => home.app.notice.startsWith("Prova riuscita: "))
            compare(home.what(".claude/CLAUDE.md"), "new")
            tabTo("Principale")
            verify(shows("1 di 1"))
            press(Qt.Key_Space)
            compare(sheet.remark, "")
            verify(shows("0 di 1"))
            press(Qt.Key_End)
            verify(focused().Accessible.description.startsWith("Profili, "), focused().Accessible.description)
            press(Qt.Key_Home)
            compare(nameOf(focused()), "Principale")
            press(Qt.Key_L)
            compare(nameOf(focused()), "Lavoro")
            tabTo("Ripristina")
            press(Qt.Key_Return)
            tryVerify(() => !layers.isOpen)
            compare(home.what(".claude/CLAUDE.md"), "new")
            verify(home.what(".claude-profiles/lavoro/.launcher.json").includes("Lavoro"))
        }

        function test_whileClaudeRuns_ItWaits(): void {
            openRestore()
            home.openClaude("default")
            tryVerify(() => !sheet.confirmEnabled)
            verify(itemsOf(sheet).some(item => item instanceof IconNote && item.text.startsWith("Chiudi Claude")))
            home.closeClaude()
            tryVerify(() => sheet.confirmEnabled)
            home.openClaude("default")
            tryVerify(() => !sheet.confirmEnabled)
            home.loseClaude() // as an agent in a terminal does, which nobody tells of
            tryVerify(() => sheet.confirmEnabled)
        }

        function test_whatIsNoBackup_IsRefused(): void {
            openRestore()
            home.write("b.zip", "no archive")
            layers.current.form.choose()
            tryVerify(() => home.app.errorMessage.includes("danneggiato"))
        }
    }
}
