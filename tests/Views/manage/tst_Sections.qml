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
        name: "Sections"

        function init(): void {
            scene.width = 1000
            home.begin()
        }
        function makeSkills(names: var): void {
            for (const name of names)
                home.write(".claude/skills/" + name)
        }
        function numbered(count: int): var {
            return Array.from({length: count}, (_, i) => "n" + String(i).padStart(4, "0") + ".md")
        }
        /// The part of the header that folds.
        function fold(title: string): Pressable {
            return the(item => item instanceof Pressable && !(item instanceof DropDown) && item.label === title)
        }
        function filterOf(title: string): FieldInput {
            return the(item => item instanceof FieldInput, section(title))
        }
        function filters(title: string): int {
            return all(item => item instanceof FilterRow, section(title)).length
        }
        function names(title: string): var {
            settle()
            return all(item => item instanceof ItemRow, section(title)).sort((a, b) => a.index - b.index).map(row => row.name)
        }
        function topOf(item: Item): real {
            return item.mapToItem(scene, 0, 0).y
        }
        /// Whether the whole row shows below the header, which covers some of them.
        function isUncovered(title: string): bool {
            const row = list(title).currentItem
            const header = section(title).header
            return row !== null && topOf(row) >= Math.max(Theme.manage.toolBarHeight, topOf(header) + header.height)
                && topOf(row) + row.height <= scene.height
        }

        function test_sections_StayFolded(): void {
            home.write(".claude/skills/a.md", "a")
            home.makeProfile("Lavoro")
            show("lavoro")
            mouseClick(fold("Skill"))
            compare(all(item => item instanceof ItemList, section("Skill")).length, 0)
            compare(section("Skill").height, Theme.manage.sectionHeader + Theme.hairline)
            verify(fold("Skill").activeFocus)
            press(Qt.Key_Right)
            compare(names("Skill"), ["a.md"])
            press(Qt.Key_Tab, Qt.Key_Tab)
            verify(hasFocus(list("Skill")))
            press(Qt.Key_Left)
            verify(fold("Skill").activeFocus) // not left behind where nobody sees it
            verify(!section("Skill").isOpen)
            fold("Server MCP").clicked()
            compare(all(item => item instanceof Pressable && item.label === "Reimporta").length, 2)
            press(Qt.Key_Tab)
            verify(all(item => item instanceof DropDown && item.activeFocus)[0].label === "Skill")

            view.destroy()
            show("default")
            verify(!section("Skill").isOpen)
            verify(section("Agenti").isOpen)
            press(Qt.Key_Space) // elsewhere
            fold("Skill").clicked()
            verify(section("Skill").isOpen)
            compare(names("Skill"), ["a.md"])
        }

        function test_header_StaysInSightAndCoversNoCurrentRow(): void {
            makeSkills(numbered(300))
            show("default")
            const skills = section("Skill")
            const pane = the(item => item instanceof ScrollPane)
            filterOf("Skill").forceActiveFocus()
            press(Qt.Key_Down, Qt.Key_End)
            compare(list("Skill").currentItem.name, "n0299.md")
            for (let i = 0; i < 40; ++i) {
                keyClick(Qt.Key_Up)
                settle()
                verify(isUncovered("Skill"))
            }
            compare(topOf(skills.header), Theme.manage.toolBarHeight)
            press(Qt.Key_PageUp)
            settle()
            verify(isUncovered("Skill"))
            verify(names("Skill").length < 60)

            const before = pane.visibleTop
            keyClick(Qt.Key_Tab, Qt.ShiftModifier) // the filter, which is in sight
            verify(filterOf("Skill").activeFocus)
            compare(pane.visibleTop, before)
            fold("Skill").forceActiveFocus()
            compare(pane.visibleTop, before)

            press(Qt.Key_Left)
            settle()
            verify(!skills.isStuck)
            verify(topOf(skills.header) >= Theme.manage.toolBarHeight && topOf(skills.header) < scene.height - skills.height)
            verify(all(item => item instanceof CollectionSection && topOf(item) > topOf(skills) && topOf(item) < scene.height)
                   .length > 0)
            press(Qt.Key_Right)
            settle()
            // The end of the section pushes its header away.
            pane.reveal(fold("Impostazioni e hook"))
            settle()
            verify(topOf(skills.header) + skills.header.height <= topOf(skills) + skills.height)
        }

        function test_presses_DontReachWhatTheHeaderCovers(): void {
            makeSkills(numbered(100))
            show("default")
            filterOf("Skill").forceActiveFocus()
            press(Qt.Key_Down, Qt.Key_End)
            settle()
            const skills = section("Skill")
            verify(skills.isStuck)
            const header = skills.header
            mouseClick(header, header.width - Theme.manage.itemMenuRight - Theme.space12, header.height - Theme.space10)
            verify(!list("Skill").menu.isOpen)
            compare(list("Skill").currentItem.name, "n0099.md")
        }

        function test_filter_LeavesWhatHoldsTheWords(): void {
            const some = ["analisi-log", "Perché.md", "code-review", "commit-in-italiano", "NOTE-di-rilascio"]
            makeSkills(some.concat(numbered(7)))
            home.makeProfile("Lavoro")
            home.write(".claude-profiles/lavoro/skills/rilascio-note", "own")
            show("default")
            compare(filters("Skill"), 0) // twelve
            home.app.select("lavoro")
            tryCompare(section("Skill").rows, "total", 13)
            compare(filters("Agenti"), 0)
            const field = filterOf("Skill")
            compare(field.label, "Filtra le 13 skill")
            field.forceActiveFocus()
            write("PERCHE")
            compare(names("Skill"), ["Perché.md"])
            verify(the(item => item instanceof StyledText && item.text === "1 di 13"))
            compare(section("Skill").component.count, "13 elementi · 12 unificati, 1 proprio")
            press(Qt.Key_Escape)
            compare(field.text, "")
            compare(section("Skill").rows.count, 13)
            write("note ril")
            compare(names("Skill"), ["NOTE-di-rilascio", "rilascio-note"])
            press(Qt.Key_Down, Qt.Key_Down)
            compare(list("Skill").currentItem.name, "rilascio-note")
            press(Qt.Key_Menu, Qt.Key_Return) // Sposta nel Cestino
            tryCompare(section("Skill").rows, "total", 12)
            compare(home.what(".claude-profiles/lavoro/skills/rilascio-note"), "")
            compare(names("Skill"), ["NOTE-di-rilascio"])
            verify(hasFocus(list("Skill")))
            press(Qt.Key_Up)
            verify(field.activeFocus) // it stays while there is something in it
            write("x")
            verify(the(item => item instanceof StyledText && item.text === "Nessun elemento con «note rilx»"))
            press(Qt.Key_Down)
            verify(field.activeFocus)
            home.app.select("default")
            tryCompare(section("Skill").rows, "count", 12)
            compare(section("Skill").rows.filter, "")
        }

        function test_filter_FindsAmongThousands(): void {
            makeSkills(numbered(3000).map(name => "Più-" + name))
            show("default")
            filterOf("Skill").forceActiveFocus()
            keyClick("p") // reads the names
            write("iu n29")
            compare(section("Skill").rows.count, 100)
        }

        function test_column_GrowsNoWiderThanItReads(): void {
            scene.width = 1800
            show("default")
            const skills = section("Skill")
            compare(skills.width, 960)
            const left = skills.mapToItem(scene, 0, 0).x
            compare(left - Theme.manage.sidebarWidth, scene.width - left - skills.width)
            const bar = the(item => item instanceof DetailToolBar)
            compare(bar.width, scene.width - Theme.manage.sidebarWidth)
        }
    }
}
