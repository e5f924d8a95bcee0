// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import QtTest
import Selvane

Item {
    id: scene

    width: 1000
    height: 700

    ManageTestCase {
        name: "Drift"

        function init(): void {
            home.begin()
            home.write(".claude/agents/a.md", "1\n2\n")
            home.write(".claude/agents/b.md", "b")
            home.write(".claude/CLAUDE.md", "di tutti\n")
            home.makeProfile("Lavoro", {modes: {"CLAUDE.md": "shared"}})
            for (const name of ["agents/a.md", "agents/b.md", "CLAUDE.md"])
                home.replace(".claude-profiles/lavoro/" + name, "1\nx\n")
            show("lavoro")
        }
        function test_changedItem_MenuByKeys(): void {
            const items = list("Agenti")
            verify(items.currentItem.isChanged)
            enter(items)
            press(Qt.Key_Return)
            tryCompare(button("Confronta con «Principale»"), "explanation", "1 riga diversa in a.md")
            button("Tieni come proprio") // an agent is masculine
            compare(items.currentItem.origin, "modificato qui")
            keyClick(Qt.Key_Return)
            const sheet = the(item => item instanceof DifferencesSheet)
            tryVerify(() => sheet.component.differenceLines.includes("+x"))
            keyClick(Qt.Key_Escape)
            tryVerify(() => visibleItems(item => item instanceof DifferencesSheet, view).length === 0)
            press(Qt.Key_Return, Qt.Key_Down, Qt.Key_Return) // Riprendi
            tryCompare(items.component, "changed", "1 modificato")
            compare(home.what(".claude-profiles/lavoro/agents/a.md"), "-> ~/.claude/agents/a.md")
            press(Qt.Key_Down, Qt.Key_Return, Qt.Key_Down, Qt.Key_Down, Qt.Key_Return) // Porta
            tryCompare(items.component, "changed", "")
            compare(home.what(".claude/agents/b.md"), "1\nx\n")
            compare(home.app.errorMessage, "")
        }

        function test_relinkAll_AsksFirst(): void {
            for (const title of ["Agenti", "Regole globali (CLAUDE.md)"]) {
                button("Unifica di nuovo: " + title).clicked()
                const alert = the(item => item instanceof AlertDialog)
                compare(alert.title, title === "Agenti" ? "Riprendere gli elementi di «Principale»?"
                                                         : "Riprendere il file di «Principale»?")
                keyClick(Qt.Key_Escape)
                tryVerify(() => visibleItems(item => item instanceof AlertDialog, view).length === 0)
                compare(home.what(".claude-profiles/lavoro/CLAUDE.md"), "1\nx\n")
                button("Unifica di nuovo: " + title).clicked()
                the(item => item instanceof AlertDialog).confirm()
                tryVerify(() => visibleItems(item => item instanceof Pressable
                                             && item.label === "Unifica di nuovo: " + title, view).length === 0)
                tryVerify(() => visibleItems(item => item instanceof AlertDialog, view).length === 0)
            }
            compare(home.what(".claude-profiles/lavoro/agents/b.md"), "-> ~/.claude/agents/b.md")
            compare(home.what(".claude-profiles/lavoro/CLAUDE.md"), "-> ~/.claude/CLAUDE.md")
        }

        function test_isolation_IsSwitched(): void {
            const toggle = button("Tieni fuori le regole di «Principale»")
            verify(!toggle.checked)
            toggle.clicked()
            verify(toggle.checked)
            verify(home.what(".claude-profiles/lavoro/settings.json").includes("claudeMdExcludes"))
            home.app.select("default")
            settle()
            verify(!toggle.visible)
        }
    }
}
