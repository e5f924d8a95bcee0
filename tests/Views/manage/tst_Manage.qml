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
        name: "Manage"

        function init(): void {
            home.begin()
            home.app.closeAfterLaunch = false
        }
        /// Checks that only few rows exist, that they cover the visible part, and that each is in its place.
        function checkRows(items: ItemList, names: var): void {
            settle()
            const rows = all(item => item instanceof ItemRow, items)
            verify(rows.length < 60)
            for (const row of rows) {
                compare(row.name, names[row.index])
                compare(row.mapToItem(items, 0, 0).y, row.index * Theme.manage.itemHeight)
            }
            const last = items.within(items.visibleTop + items.visibleHeight) / Theme.manage.itemHeight
            for (let i = Math.floor(items.within(items.visibleTop) / Theme.manage.itemHeight); i < last; ++i)
                verify(rows.some(row => row.index === i))
        }
        function isInSight(item: Item): bool {
            const y = item.mapToItem(scene, 0, 0).y
            return y >= Theme.manage.toolBarHeight && y + item.height <= scene.height
        }

        function test_items_OnlyThoseInSightExist(): void {
            let names = []
            for (let i = 0; i < 2000; ++i) {
                names.push("n" + String(i).padStart(4, "0") + ".md")
                home.write(".claude/skills/" + names[i])
            }
            show("default")
            const items = list("Skill")
            compare(items.count, 2000)
            checkRows(items, names)
            enter(items)
            press(Qt.Key_PageDown, Qt.Key_PageDown, Qt.Key_Down, Qt.Key_Up)
            verify(items.currentRow > 20 && items.currentRow < 60)
            checkRows(items, names)
            press(Qt.Key_End)
            compare(items.currentItem.name, "n1999.md")
            verify(isInSight(items.currentItem))
            checkRows(items, names)

            home.write(".claude/skills/a.md")
            home.app.reload()
            tryCompare(items, "count", 2001)
            verify(hasFocus(items))
            compare(items.currentRow, 2000)
            compare(items.currentItem.name, "n1999.md")
            checkRows(items, ["a.md"].concat(names))
            press(Qt.Key_Home)
            verify(isInSight(items.currentItem))
            checkRows(items, ["a.md"].concat(names))

            home.makeProfile("Vuoto", {source: ""})
            home.app.select("vuoto")
            tryCompare(items.component, "count", "Nessun elemento")
            compare(all(item => item instanceof ItemRow, items).length, 0)
            verify(isInSight(button("Cambia icona")))
        }

        function test_itemMenu_ByKeys(): void {
            home.write(".claude/agents/a.md", "a")
            home.makeProfile("Lavoro")
            home.write(".claude-profiles/lavoro/agents/own.md", "own")
            show("lavoro")
            const items = list("Agenti")
            enter(items)
            press(Qt.Key_Space, Qt.Key_Down, Qt.Key_Return) // Rendi propria
            tryVerify(() => home.what(".claude-profiles/lavoro/agents/a.md") === "a")
            tryVerify(() => hasFocus(items))
            tryVerify(() => !items.currentItem.isLink)
            press(Qt.Key_Down, Qt.Key_Return, Qt.Key_Down, Qt.Key_Return) // Mostra nella cartella
            compare(home.asked().revealed, ["~/.claude-profiles/lavoro/agents/own.md"])
            keyClick(Qt.Key_F10, Qt.ShiftModifier)
            keyClick(Qt.Key_Return) // Sposta nel Cestino
            compare(home.what(".claude-profiles/lavoro/agents/own.md"), "")
            tryCompare(items, "count", 1)
            verify(hasFocus(items))
            compare(items.currentRow, 0)
            for (const name of ["due.md", "tre.md", "uno.md"])
                home.write(".claude-profiles/lavoro/agents/" + name, name)
            home.app.reload()
            tryCompare(items, "count", 4)
            press(Qt.Key_End, Qt.Key_Home)
            settle()
            mouseClick(button("Azioni per «tre.md»"))
            mouseClick(the(item => item instanceof MenuEntry && item.text === "Sposta nel Cestino", scene.Window.contentItem))
            compare(home.what(".claude-profiles/lavoro/agents/tre.md"), "")
            compare(home.what(".claude-profiles/lavoro/agents/due.md"), "due.md")
            tryCompare(items, "count", 3)
            enter(items)
            press(Qt.Key_T, Qt.Key_U)
            compare(items.currentItem.name, "uno.md")
            for (let left = 3; left > 0; --left) {
                press(Qt.Key_Home, Qt.Key_Menu, Qt.Key_Return)
                tryCompare(items, "count", left - 1)
            }
            verify(hasFocus(view))
            verify(!hasFocus(items))
            compare(home.app.errorMessage, "")
        }

        function test_itemMenu_StaysWithItsItem(): void {
            home.write(".claude/agents/b.md", "b")
            home.write(".claude/agents/c.md", "c")
            show("default")
            const items = list("Agenti")
            enter(items)
            press(Qt.Key_Down, Qt.Key_Space)
            verify(items.menu.isOpen)
            home.write(".claude/agents/a.md", "a")
            home.remove(".claude/agents/b.md")
            home.write(".claude/agents/b2.md", "b")
            home.app.reload()
            tryCompare(items, "count", 3)
            verify(items.menu.isOpen)
            press(Qt.Key_Return) // Sposta nel Cestino
            compare(home.what(".claude/agents/c.md"), "")
            compare(home.what(".claude/agents/b2.md"), "b")
            tryCompare(items, "count", 2)
            verify(hasFocus(items))
            press(Qt.Key_Space)
            home.remove(".claude/agents/b2.md")
            home.app.reload()
            tryVerify(() => !items.menu.isOpen)
            verify(hasFocus(items))
        }

        function test_whatIsOffered_DependsOnTheProfile(): void {
            home.makeProfile("Lavoro", {account: "default"})
            show("default")
            compare(buttons("Sincronizza"), 0)
            compare(buttons("Reimporta"), 0)
            compare(all(item => item instanceof DropDown).length, 0)
            compare(buttons("Apri"), 0)
            compare(buttons("Crea"), 2)
            all(item => item instanceof Pressable && item.label === "Mostra")[0].press()
            compare(home.asked().revealed, ["~/.claude"])
            all(item => item instanceof Pressable && item.label === "Crea")[1].press()
            compare(home.asked().opened, ["~/.claude/settings.json"])
            home.remove(".claude/settings.json")
            home.app.reload()
            tryVerify(() => buttons("Crea") === 2)
            verify(button("Verifica aggiornamenti").enabled)
            home.app.select("lavoro")
            compare(buttons("Sincronizza"), 1)
            compare(buttons("Reimporta"), 3)
            compare(all(item => item instanceof DropDown).length, 10)
            compare(buttons("Avvia Claude  →"), 1)
            const row = the(item => item instanceof ProfileRow && item.isSelected)
            compare(row.Accessible.description, "Mai avviato, eredita da «Principale»")
            home.openClaude("lavoro")
            tryVerify(() => buttons("Mostra Claude  →") === 1)
            compare(row.Accessible.description, "Mai avviato, eredita da «Principale», Aperto in Claude")
        }

        function test_launchShortcut_WaitsForNoSheet(): void {
            show("default")
            view.newProfile("")
            keyClick(Qt.Key_Return, Qt.ControlModifier)
            compare(home.asked().launches, 0)
            keyClick(Qt.Key_Escape)
            tryVerify(() => !view.hasSheet)
            keyClick(Qt.Key_Return, Qt.ControlModifier)
            tryVerify(() => home.asked().launches === 1)
            tryCompare(home.app, "busyMessage", "")

            home.makeProfile("Lavoro", {account: "default"})
            home.openClaude("default")
            home.ignoreTerminations(1000)
            home.app.launch("lavoro")
            home.app.confirmLaunch()
            tryCompare(home.app, "offerForceQuit", "lavoro")
            keyClick(Qt.Key_Return, Qt.ControlModifier)
            compare(home.asked().activated, 0) // not while a question is open
        }

        function test_sheets_OneAtATime_OverTheRightProfile(): void {
            home.makeProfile("Lavoro")
            show("lavoro")
            mouseClick(button("Nuovo profilo da questo"))
            const sheet = the(item => item instanceof NewProfileSheet)
            compare(sheet.initialSource, "lavoro")
            view.newProfile("")
            compare(the(item => item instanceof NewProfileSheet), sheet)
            for (const key of [Qt.Key_Right, Qt.Key_Down, Qt.Key_End, Qt.Key_Menu])
                keyClick(key)
            verify(sheet.activeFocus)
            compare(home.app.selection, "lavoro")
        }

        function test_sheet_GoesWithItsProfile(): void {
            home.makeProfile("Lavoro")
            home.makeProfile("Ospite")
            show("lavoro")
            mouseClick(button("Elimina"))
            home.remove(".claude-profiles/ospite")
            home.app.reload()
            verify(the(item => item instanceof AlertDialog).title.includes("Spostare «Lavoro»"))
            home.remove(".claude-profiles/lavoro")
            home.app.reload()
            tryVerify(() => all(item => item instanceof AlertDialog && item.isOpen)[0]?.title === "«Lavoro» non c'è più")
            keyClick(Qt.Key_Return)
            tryVerify(() => !view.hasSheet)
            compare(home.app.errorMessage, "")
        }

        function test_names_AreSavedOnReturnAndOnLeaving(): void {
            home.makeProfile("Lavoro")
            show("lavoro")
            const field = the(item => item instanceof HeaderField && item.label === "Nome")
            const input = the(item => item instanceof TextInput && item.label === "Nome")
            input.forceActiveFocus()
            press(Qt.Key_A, Qt.Key_Escape)
            compare(input.text, "Lavoro")
            verify(!field.saysSaved)
            press(Qt.Key_B, Qt.Key_Return)
            compare(field.value, "Lavorob")
            verify(field.saysSaved)
            press(Qt.Key_C, Qt.Key_Tab)
            compare(home.app.selection, "lavoro")
            compare(field.value, "Lavorobc")
            compare(JSON.parse(home.what(".claude-profiles/lavoro/.launcher.json")).name, "Lavorobc")
            // The description has the focus now. What is typed for one profile never reaches another.
            press(Qt.Key_X)
            home.app.select("default")
            const summary = the(item => item instanceof TextInput && item.label === "Descrizione")
            verify(summary.activeFocus)
            compare(summary.text, "La configurazione standard di Claude (~/.claude)")
            press(Qt.Key_Tab)
            compare(input.text, "Principale")
            compare(home.what(".claude-profiles/default.json"), "")
            input.forceActiveFocus()
            input.text = "  "
            press(Qt.Key_Tab)
            compare(input.text, "Principale")
            verify(!field.saysSaved)
            input.forceActiveFocus()
            input.text = "Un nome lungo ".repeat(20)
            press(Qt.Key_Tab)
            compare(input.positionAt(0), 0) // it shows its beginning
        }

        function test_scroll_StaysWhenAnAlertCloses(): void {
            for (let i = 0; i < 30; ++i)
                home.write(`.claude/skills/n${i}.md`)
            home.makeProfile("Lavoro")
            show("lavoro")
            const mode = all(item => item instanceof DropDown).find(item => item.label === "Skill")
            mode.forceActiveFocus()
            const last = button("Crea")
            const pane = the(item => item instanceof ScrollPane)
            pane.reveal(last)
            const top = pane.visibleTop
            verify(top > 500)
            mouseClick(button("Elimina"))
            keyClick(Qt.Key_Escape)
            tryVerify(() => mode.activeFocus)
            compare(pane.visibleTop, top)
            keyClick(Qt.Key_Tab)
            verify(pane.visibleTop < top) // what Tab reaches comes into view
        }

        function test_delete_AsksFirst(): void {
            home.write(".claude/CLAUDE.md", "x")
            home.makeProfile("Lavoro")
            show("lavoro")
            mouseClick(button("Elimina"))
            verify(the(item => item instanceof AlertDialog).title.includes("«Lavoro»"))
            keyClick(Qt.Key_Return) // the focus starts on "Annulla"
            tryVerify(() => !view.hasSheet)
            compare(home.what(".claude-profiles/lavoro"), "/")
            mouseClick(button("Elimina"))
            mouseClick(button("Sposta nel Cestino"))
            tryCompare(home.app, "selection", "default")
            compare(home.what(".claude-profiles/lavoro"), "")
            tryVerify(() => !view.hasSheet)

            compare(buttons("Elimina"), 0)
            verify(the(item => item instanceof StyledText && item.text === "Il profilo principale non si elimina"))
        }

        function test_symbolAndColour_ArePickedInThePopover(): void {
            show("default")
            mouseClick(button("Cambia icona"))
            press(Qt.Key_Right, Qt.Key_Space)
            const glyph = the(item => item instanceof GlyphButton)
            tryVerify(() => glyph.look.symbol === "briefcase")
            verify(!glyph.choice.isOpen)

            mouseClick(button("Cambia icona"))
            press(Qt.Key_Tab, Qt.Key_End, Qt.Key_Space)
            tryVerify(() => glyph.look.color === "Ardesia")
            compare(glyph.look.symbol, "briefcase")
            verify(glyph.choice.isOpen)
            press(Qt.Key_Backtab, Qt.Key_Space)
            verify(!glyph.choice.isOpen)
        }

        function test_narrow_LosesLabelsNotButtons(): void {
            scene.width = 880
            home.makeProfile("Lavoro")
            show("lavoro")
            const toolButtons = all(item => item instanceof DetailToolButton)
            compare(toolButtons.map(found => found.text + found.help),
                    ["Comando terminale", "Nuovo profilo da questo", "Mostra nella cartella", "Elimina"])
            scene.width = 1000
            compare(toolButtons[3].text, "Elimina")
        }

        function test_noSelection_ShowsTheEmptyDetail(): void {
            show("")
            verify(the(item => item instanceof EmptyDetail))
            compare(buttons("Mostra nella cartella"), 0)
            home.app.select("default")
            compare(buttons("Mostra nella cartella"), 1)
            compare(all(item => item instanceof EmptyDetail).length, 0)
        }
    }
}
