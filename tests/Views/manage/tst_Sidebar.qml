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
        name: "Sidebar"

        function init(): void {
            home.begin()
            home.app.closeAfterLaunch = false
        }
        function isInSight(item: Item): bool {
            const y = item.mapToItem(scene, 0, 0).y
            return y >= Theme.manage.toolBarHeight && y + item.height <= scene.height
        }

        function test_sidebar_IsOneListOfFewRows(): void {
            for (let i = 0; i < 200; ++i) {
                const id = "p" + String(i).padStart(3, "0")
                home.write(`.claude-profiles/${id}/.launcher.json`, `{"name": "${id}"}`)
            }
            home.app.reload()
            show("default")
            const rows = () => all(item => item instanceof ProfileRow)
            const selected = () => the(item => item instanceof ProfileRow && item.isSelected)
            verify(rows().length < 40)
            compare(selected().mapToItem(scene, 0, 0).x, Theme.manage.listInset)
            press(Qt.Key_Up)
            compare(home.app.selection, "default")
            press(Qt.Key_Down, Qt.Key_Down)
            compare(home.app.selection, "p001")
            verify(selected().isRinged)
            const list = selected().ListView.view
            for (const letter of "P15")
                keyClick(letter)
            compare(home.app.selection, "p150")
            compare([list.count, Array.from(selected().foundInName)], [10, [0, 3]])
            const capsule = the(item => item instanceof SearchCapsule)
            compare(capsule.Accessible.name, "Cerca: P15, 10 di 201")
            press(Qt.Key_Down)
            compare(home.app.selection, "p151")
            press(Qt.Key_Z)
            compare([list.count, home.app.selection], [0, "p151"])
            press(Qt.Key_Backspace)
            compare([list.count, home.app.selection], [10, "p150"])
            press(Qt.Key_Escape)
            compare([list.count, home.app.selection], [201, "p150"])
            verify(!capsule.visible)
            press(Qt.Key_End)
            compare(home.app.selection, "p199")
            tryVerify(() => isInSight(selected()))
            verify(rows().length < 40)
            const place = selected().ListView.view.contentY
            home.app.reload()
            settle()
            compare(selected().name, "p199")
            compare(selected().ListView.view.contentY, place)
            press(Qt.Key_Menu, Qt.Key_Down, Qt.Key_Return)
            compare(home.asked().revealed, ["~/.claude-profiles/p199"])
            verify(hasFocus(selected().ListView.view))
            press(Qt.Key_Up, Qt.Key_Menu, Qt.Key_Down, Qt.Key_Return)
            compare(home.asked().revealed[1], "~/.claude-profiles/p198")
            keyClick(Qt.Key_F10, Qt.ShiftModifier)
            press(Qt.Key_Up, Qt.Key_Up, Qt.Key_Return)
            verify(view.hasSheet)
        }
    }
}
