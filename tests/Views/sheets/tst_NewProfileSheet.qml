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
    Component { id: newProfile; NewProfileSheet { app: home.app } }

    SheetTestCase {
        id: test

        name: "NewProfileSheet"

        function init(): void {
            home.begin()
            home.write(".claude/skills/uno.md", "1")
            home.write(".claude/skills/due.md", "2")
            home.write(".claude/CLAUDE.md", "regole")
            home.addSession("Ordini", "/srv/ordini")
        }
        function meta(id: string): var {
            const text = home.what(`.claude-profiles/${id}/.launcher.json`)
            return text === "" ? null : JSON.parse(text)
        }

        function test_needsAName(): void {
            openSheet(newProfile, { initialSource: "default" })
            compare(nameOf(focused()), "Nome")
            write("  ")
            press(Qt.Key_Return)
            verify(!sheet.confirmEnabled && sheet.isOpen)
            write("Lavoro")
            confirm()
            const made = meta("lavoro")
            compare([made.name, made.source, made.account, made.symbol], ["Lavoro", "default", "default", "briefcase"])
            compare(home.what(".claude-profiles/lavoro/skills/uno.md"), "-> ~/.claude/skills/uno.md")
            compare(home.app.selection, "lavoro")
        }

        function test_staysUntilTheProfileIsThere(): void {
            openSheet(newProfile)
            write("Lavoro")
            home.remove(".claude-profiles")
            home.write(".claude-profiles", "no folder")
            press(Qt.Key_Return)
            tryVerify(() => home.app.errorMessage !== "")
            home.app.clearError()
            verify(sheet.isOpen)
            compare([nameOf(focused()), focused().text], ["Nome", "Lavoro"])
            home.remove(".claude-profiles")
            home.write(".claude-profiles/.x")
            confirm()
            compare(home.app.selection, "lavoro")
        }

        function test_emptyProfileTakesNothing(): void {
            openSheet(newProfile, { initialSource: "default" })
            const note = "Il profilo parte senza skill né regole."
            verify(shows("Account Claude") && shows("Cosa portare da «Principale»") && !shows(note))
            write("Vuoto")
            tabTo("Parti da: Principale")
            press(Qt.Key_Space, Qt.Key_Home, Qt.Key_Return)
            verify(!shows("Account Claude") && !shows("Cosa portare da «Principale»") && shows(note))
            confirm()
            verify(!("source" in meta("vuoto")) && !("account" in meta("vuoto")))
            compare(home.what(".claude-profiles/vuoto/skills/uno.md"), "")
        }

        function test_makesWhatWasChosen(): void {
            openSheet(newProfile, { initialSource: "default" })
            tabTo("valigetta")
            press(Qt.Key_Down, Qt.Key_Space)
            tabTo("Stesso account di «Principale»")
            press(Qt.Key_Down)
            tabTo("Porta le sessioni del tab Code di «Principale»")
            press(Qt.Key_Space)
            tabTo("Imposta tutto: Separato")
            press(Qt.Key_Space)
            tabTo("Regole globali (CLAUDE.md): Separato")
            press(Qt.Key_Space, Qt.Key_V, Qt.Key_Return)
            tabTo("due.md")
            press(Qt.Key_Right, Qt.Key_Space)
            verify(shows("1 di 2 selezionato"))
            tabTo("Descrizione")
            write("Prove")
            tabTo("Nome")
            write("Studio")
            confirm()
            const made = meta("studio")
            compare([made.summary, made.symbol, made.account], ["Prove", "atom", undefined])
            compare(home.what(".claude-profiles/studio/skills/due.md"), "2")
            compare(home.what(".claude-profiles/studio/skills/uno.md"), "")
            compare(home.what(".claude-profiles/studio/CLAUDE.md"), "")
            compare(home.app.notice, "1 sessione verrà aggiunta dopo il primo login")
        }

        function test_radioButtonIsChosenByAssistiveTechnology(): void {
            openSheet(newProfile, { initialSource: "default" })
            tabTo("Stesso account di «Principale»")
            const [same, separate] = itemsOf(sheet).filter(item => item instanceof RadioRow)
            home.act(separate, "Toggle")
            verify(shows("Porta le sessioni del tab Code di «Principale»"))
            verify(!same.checked && separate.checked)
            home.act(separate, "Toggle")
            verify(!same.checked && separate.checked)
        }

        function test_sourceThatGoesAwayIsLeft(): void {
            home.makeProfile("Lavoro")
            openSheet(newProfile, { initialSource: "lavoro" })
            verify(shows("Cosa portare da «Lavoro»"))
            home.remove(".claude-profiles/lavoro")
            home.app.reload()
            verify(shows("Profilo vuoto") && !shows("Account Claude"))
        }
    }
}
