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
    Component { id: items; ImportSheet { app: home.app; target: "lavoro"; component: "skills" } }
    Component { id: onlyItems; ImportSheet { app: home.app; target: "default"; component: "skills" } }
    Component { id: onlySessions; SessionImportSheet { app: home.app; target: "default" } }
    Component { id: sessions; SessionImportSheet { app: home.app; target: "lavoro" } }

    SheetTestCase {
        id: test

        name: "ImportSheets"

        function init(): void {
            home.begin()
        }
        /// Call it last, so that the profile doesn't have what is in the home by then.
        function makeTarget(): void {
            home.makeProfile("Lavoro", { modes: { skills: "none" } })
        }
        function openSessions(): void {
            openSheet(sessions)
            tryVerify(() => !shows("Lettura delle sessioni…"))
            settle()
        }

        function test_copiesWhatWasTicked(): void {
            for (const name of ["uno.md", "due.md", "tre.md"])
                home.write(".claude/skills/" + name, name)
            makeTarget()
            home.write(".claude-profiles/lavoro/skills/uno.md", "own")
            openSheet(items)
            compare(nameOf(focused()), "due.md")
            verify(!sheet.confirmEnabled)
            press(Qt.Key_Down, Qt.Key_Space)
            compare(sheet.confirmText, "Aggiungi 1")
            tabTo("Unificato (collegamento)")
            press(Qt.Key_Right)
            compare(nameOf(focused()), "Separato (copia)")
            confirm()
            compare(home.what(".claude-profiles/lavoro/skills/tre.md"), "tre.md")
            compare(home.what(".claude-profiles/lavoro/skills/due.md"), "")
            compare(home.what(".claude-profiles/lavoro/skills/uno.md"), "own")
        }

        function test_whatOthersChange_IsFollowed(): void {
            for (const name of ["uno.md", "due.md"])
                home.write(".claude/skills/" + name, name)
            makeTarget()
            openSheet(items)
            press(Qt.Key_Down, Qt.Key_Space)
            home.write(".claude/skills/cinque.md", "5")
            home.remove(".claude/skills/due.md")
            home.app.reload()
            tryVerify(() => shows("cinque.md"))
            verify(!shows("due.md"))
            compare(sheet.confirmText, "Aggiungi 1")
            confirm()
            compare(home.what(".claude-profiles/lavoro/skills/uno.md"), "-> ~/.claude/skills/uno.md")
            compare(home.what(".claude-profiles/lavoro/skills/cinque.md"), "")

            home.makeProfile("Ospite", { account: "default" })
            home.addSession("Una", "/srv")
            openSessions()
            home.addSession("Due", "/srv")
            home.remove(".claude-profiles/ospite")
            home.app.reload()
            tryVerify(() => itemsOf(sheet).some(item => item instanceof CheckBoxRow && item.text === "Due"))
        }

        function test_sessionsThatAreThere_AreMarked(): void {
            home.addSession("Una", "/srv")
            home.makeProfile("Lavoro", { account: "default" })
            openSessions()
            verify(itemsOf(sheet).some(item => item instanceof CheckBoxRow && item.text === "Una" && item.mark === "già qui"))
        }

        function test_nothingNew(): void {
            home.write(".claude/skills/uno.md", "1")
            home.makeProfile("Lavoro")
            home.makeProfile("Ospite", { modes: { skills: "none" } })
            openSheet(items)
            verify(shows("Niente da aggiungere") && !sheet.confirmEnabled)
            compare(nameOf(focused()), "Profilo: Principale")
            press(Qt.Key_Return)
            verify(sheet.isOpen)
            home.write(".claude-profiles/ospite/skills/nuova.md", "x")
            press(Qt.Key_Space, Qt.Key_End, Qt.Key_Return)
            verify(shows("nuova.md") && !shows("Niente da aggiungere"))
        }

        function test_noOtherProfile_IsExplained_data(): var {
            return [{ tag: "items", sheet: onlyItems, what: "prendere elementi" },
                    { tag: "sessions", sheet: onlySessions, what: "importare sessioni" }]
        }
        function test_noOtherProfile_IsExplained(row: var): void {
            openSheet(row.sheet)
            verify(shows(`C'è solo questo profilo: per ${row.what} da un altro, prima creane uno.`))
            verify(!itemsOf(sheet).some(item => item instanceof DropDown && item.visible))
            compare(nameOf(focused()), "Annulla")
        }

        function test_longListIsOneStop(): void {
            for (let i = 1000; i < 1500; ++i)
                home.write(`.claude/skills/${i}.md`)
            makeTarget()
            openSheet(items)
            tryVerify(() => nameOf(focused()) === "1000.md") // they are listed on another thread
            press(Qt.Key_Space, Qt.Key_PageDown, Qt.Key_End)
            compare(nameOf(focused()), "1499.md")
            tryVerify(() => isInSight(focused()))
            press(Qt.Key_Space, Qt.Key_Up, Qt.Key_Space)
            compare(sheet.confirmText, "Aggiungi 3")
            verify(focused().Accessible.checked)
            const third = itemsOf(sheet).find(item => item instanceof CheckBoxRow && item.text === "1496.md")
            verify(!third.Accessible.checked)
            mouseClick(third)
            verify(third.Accessible.checked)
            mouseClick(third)
            const other = itemsOf(sheet).find(item => item instanceof CheckBoxRow && item.text === "1495.md")
            home.act(other, "Toggle") // far from the focus, as a screen reader can
            verify(other.Accessible.checked)
            verify(!third.Accessible.checked)
            home.act(other, "Toggle")
            write("1498")
            compare(nameOf(focused()), "1498.md")
            verify(itemsOf(sheet).filter(item => item instanceof CheckBoxRow).length < 40)
            press(Qt.Key_Backtab)
            compare(nameOf(focused()), "Profilo: Principale")
            press(Qt.Key_Tab)
            compare(nameOf(focused()), "1498.md")
            press(Qt.Key_Tab)
            compare(nameOf(focused()), "Unificato (collegamento)")
            press(Qt.Key_Up) // over the end
            compare(nameOf(focused()), "Separato (copia)")
            press(Qt.Key_Backtab)
            compare(nameOf(focused()), "1498.md")
            press(Qt.Key_Tab)
            compare(nameOf(focused()), "Separato (copia)")
        }

        function test_sessionsAreSearchedAndImported(): void {
            home.addSession("Modulo d'ordine", home.absolute("negozio"))
            home.addSession("Sito", "/srv/Negozio")
            home.addSession("Note", "/srv/note")
            makeTarget()
            openSheet(sessions)
            verify(!shows("Nessuna sessione")) // while they are being read
            tryVerify(() => shows("0 di 3 selezionate"))
            tryVerify(() => shows("~/negozio"))
            verify(!sheet.confirmEnabled)
            compare(nameOf(focused()), "Cerca")
            write("negozio")
            settle()
            verify(!shows("Note") && shows("Sito"))
            tabTo("Tutte")
            press(Qt.Key_Space)
            tabTo("Sito")
            press(Qt.Key_Down)
            compare(nameOf(focused()), "Modulo d'ordine")
            press(Qt.Key_Space)
            tabTo("Cerca")
            press(Qt.Key_Backspace, Qt.Key_Z)
            verify(shows("Nessuna sessione"))
            verify(shows("1 di 3 selezionata"))
            confirm()
            compare(home.app.notice, "0 copiate, 1 aggiunta al prossimo avvio di «Lavoro»")
        }

        function test_escapeImportsNothing(): void {
            home.addSession("Note", "/srv/note")
            makeTarget()
            openSessions()
            tabTo("Note")
            press(Qt.Key_Space, Qt.Key_Escape)
            tryCompare(closed, "count", 1)
            compare(home.app.notice, "")
        }
    }
}
