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
    Component { id: backup; BackupSheet { app: home.app } }

    SheetTestCase {
        id: test

        name: "BackupSheet"

        function init(): void {
            home.begin()
        }

        function test_needsAScope(): void {
            home.write(".claude/CLAUDE.md", "x")
            openSheet(backup)
            for (const name of ["Profilo Principale", "Profili di Selvane"]) {
                verify(sheet.confirmEnabled)
                tabTo(name)
                press(Qt.Key_Space)
            }
            press(Qt.Key_Return)
            verify(!sheet.confirmEnabled && sheet.isOpen)
            tabTo("Profilo Principale")
            press(Qt.Key_Space)
            home.answerArchive("backup.zip")
            confirm()
            tryCompare(home.app, "busyMessage", "")
            compare(home.asked().revealed, ["~/backup.zip"])
        }

        function test_warnsWhileClaudeRuns(): void {
            const warning = "Chiudi Claude prima del backup"
            home.openClaude("default")
            openSheet(backup)
            verify(shows(warning))
            verify(!sheet.confirmEnabled) // it would be refused
            tabTo("Profilo Principale")
            press(Qt.Key_Space)
            verify(sheet.confirmEnabled)
            press(Qt.Key_Space)
            home.closeClaude()
            verify(!shows(warning))
            verify(sheet.confirmEnabled)
        }
    }
}
