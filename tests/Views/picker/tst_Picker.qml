// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import QtTest
import Selvane
import SelvaneTest
import ".."

Item {
    id: scene

    width: 980
    height: 660

    TestHome { id: home }
    Component {
        id: pickerComponent

        ProfilePicker {
            id: view

            anchors.fill: parent
            app: home.app
            picker: PickerModel { app: view.app }
            Component.onCompleted: picker.begin()
        }
    }
    Component { id: alertButton; GhostButton { text: "Annulla" } }
    SignalSpy { id: manageAsked; signalName: "manageAsked" }

    ViewTestCase {
        id: test

        name: "Picker"

        property ProfilePicker view: null

        function init(): void {
            home.begin()
            home.makeProfile("Lavoro")
            home.makeProfile("Studio")
            home.app.closeAfterLaunch = false
        }
        function show(): void {
            view = createTemporaryObject(pickerComponent, scene)
            view.forceActiveFocus()
            manageAsked.target = view
            manageAsked.clear()
        }
        function tile(name: string): ProfileTile {
            const strip = findChild(view, "strip")
            for (let i = 0; i < strip.count; ++i) {
                const found = strip.itemAtIndex(i)
                if (found && found.name === name)
                    return found
            }
            return null
        }
        function point(name: string): void {
            mouseMove(tile(name), 60, 60)
            mouseMove(tile(name), 61, 60)
        }
        function launchedInto(): string {
            tryCompare(home.app, "busyMessage", "")
            return home.asked().launches + " " + (home.app.errorMessage || "")
        }

        function test_keys_MoveAroundTheEnds_AndLaunch(): void {
            show()
            compare(view.picker.focused, "default")
            keyClick(Qt.Key_Left)
            compare(view.picker.focused, "studio")
            keyClick(Qt.Key_Right)
            keyClick(Qt.Key_Right)
            compare(view.picker.focused, "lavoro")
            keyClick(Qt.Key_Return)
            compare(launchedInto(), "1 ")
            keyClick(Qt.Key_3)
            compare(view.picker.focused, "studio")
            compare(launchedInto(), "2 ")
            keyClick(Qt.Key_0)
            keyClick(Qt.Key_4)
            compare(launchedInto(), "2 ")
            keyClick(Qt.Key_Home)
            compare(view.picker.focused, "default")
            keyClick(Qt.Key_End)
            compare(view.picker.focused, "studio")
            verify(tile("Studio").isLit && tile("Studio").activeFocus)
            keyClick(Qt.Key_Tab)
            verify(!tile("Studio").isLit) // one frame at a time
            const cancel = createTemporaryObject(alertButton, scene)
            view.isCovered = true
            cancel.forceActiveFocus(Qt.TabFocusReason)
            verify(cancel.ringed)
            verify(tile("Studio").isLit) // below an alert, which begins on a button
            compare(home.app.selection, "default")
        }

        function type(text: string): void {
            for (const letter of text)
                keyClick(letter)
        }
        function shown(): var {
            const strip = findChild(view, "strip")
            return Array.from({length: strip.profiles.count}, (_, row) => strip.profiles.idNear(row))
        }

        function test_typing_LeavesWhatIsFound_AndReturnLaunchesTheFirst(): void {
            home.makeProfile("Cliente Aurora")
            home.makeProfile("Cliente 2")
            show()
            const strip = findChild(view, "strip")
            type("CLI")
            compare(shown(), ["cliente-2", "cliente-aurora"])
            const capsule = visibleItems(item => item instanceof SearchCapsule, view)[0]
            compare([capsule.text, capsule.count], ["CLI", "2 di 5 profili"])
            tryVerify(() => tile("Cliente 2") && tile("Cliente 2").activeFocus && tile("Cliente 2").isLit)
            compare(Array.from(tile("Cliente 2").foundInName), [0, 3])
            verify(!tile("Cliente 2").hasDigit)
            // The lit tile is a little larger.
            tryVerify(() => tile("Studio") === null
                            && Math.abs(tile("Cliente 2").mapToItem(strip, 0, 0).x - strip.margin) < 8)
            keyClick(Qt.Key_Right)
            compare(view.picker.focused, "cliente-aurora")
            type(" 2") // a digit is text now
            compare(shown(), ["cliente-2"])
            compare(launchedInto(), "0 ")
            keyClick(Qt.Key_Return)
            compare(launchedInto(), "1 ")
            compare(view.picker.focused, "cliente-2")

            type("x")
            compare(shown(), [])
            verify(visibleItems(item => item.text === "Nessun profilo con «CLI 2x»", view).length === 1)
            keyClick(Qt.Key_Return)
            compare(launchedInto(), "1 ")
            keyClick(Qt.Key_Backspace)
            compare(shown(), ["cliente-2"])
            keyClick(Qt.Key_Escape)
            compare(shown().length, 5)
            compare(view.picker.focused, "cliente-2")
            verify(!capsule.visible)
            tryVerify(() => tile("Studio") !== null)
            keyClick(Qt.Key_1)
            compare(launchedInto(), "2 ")
        }

        function test_search_EndsWhenAnotherProfileIsSelected(): void {
            show()
            type("stu")
            home.app.select("lavoro")
            compare(shown().length, 3)
            tryVerify(() => tile("Lavoro") && tile("Lavoro").activeFocus)
            type("a")
            compare(view.picker.focused, "default") // in its description
            keyClick(Qt.Key_Backspace)
            compare(shown().length, 3)
        }

        function test_order_RecentFirst_MarksTheLastOne(): void {
            show()
            keyClick(Qt.Key_3)
            compare(launchedInto(), "1 ")
            compare(shown(), ["default", "lavoro", "studio"])
            home.app.recentFirst = true
            compare(shown(), ["studio", "default", "lavoro"])
            tryVerify(() => tile("Studio").index === 0 && tile("Studio").Accessible.description.startsWith("ultimo, "))
            keyClick(Qt.Key_2)
            compare(view.picker.focused, "default")
            compare(launchedInto(), "2 ")
            home.app.recentFirst = false
        }

        function test_newProfile_IsInTheBarWhileTheStripScrolls(): void {
            const offers = () => visibleItems(item => item instanceof GhostButton && item.text === "Nuovo profilo", view)
            show()
            compare(offers().length, 0)
            for (let i = 0; i < 4; ++i)
                home.makeProfile("p" + i, {source: ""})
            home.app.reload()
            tryVerify(() => offers().length === 1)
            type("p0") // which is too few to scroll
            compare(offers().length, 1)
            mouseClick(offers()[0])
            verify(view.sheet)
        }

        function test_pointer_FocusesLaunchesAndOpensSettings(): void {
            show()
            const work = tile("Lavoro")
            compare(work.mapToItem(findChild(view, "strip"), 0, 0).y, Theme.picker.stripSpare)
            point("Lavoro")
            compare(view.picker.focused, "lavoro")
            mouseClick(work, work.width - Theme.picker.tileGearMargin - 10, Theme.picker.tileGearMargin + 10)
            compare(manageAsked.count, 1)
            compare(home.app.selection, "lavoro")
            compare(launchedInto(), "0 ")
            mouseClick(work)
            compare(launchedInto(), "1 ")
        }

        function test_typing_WithReducedMotion_LeavesNothingBehind(): void {
            Theme.reducedMotion = true
            home.makeProfile("Cliente Aurora")
            home.makeProfile("Zeta")
            show()
            type("cli")
            wait(100)
            compare(visibleItems(item => item instanceof ProfileTile && item.opacity > 0, view).map(item => item.name),
                    ["Cliente Aurora"])
            Theme.reducedMotion = false
        }

        function test_menu_ByKeyAndPointer(): void {
            show()
            keyClick(Qt.Key_Right)
            keyClick(Qt.Key_F10, Qt.ShiftModifier)
            keyClick(Qt.Key_Down)
            keyClick(Qt.Key_Return)
            compare(manageAsked.count, 1)
            compare(home.app.selection, "lavoro")

            mouseClick(tile("Studio"), 50, 50, Qt.RightButton)
            compare(launchedInto(), "0 ")
            press(Qt.Key_Up, Qt.Key_Up)
            keyClick(Qt.Key_Return)
            verify(view.sheet)
            compare(view.sheet.initialSource, "studio")
        }

        function test_newProfile_StartsFromTheFocusedOne_OneSheetAtATime(): void {
            show()
            keyClick(Qt.Key_Right)
            view.newProfile(view.picker.focused)
            const sheet = view.sheet
            compare(sheet.initialSource, "lavoro")
            view.newProfile("default")
            compare(view.sheet, sheet)
            keyClick(Qt.Key_Escape)
            tryVerify(() => view.sheet === null)
            keyClick(Qt.Key_Left)
            compare(view.picker.focused, "default")
        }

        function test_sheet_OwnsAllKeys_ThenTheNewTileHasTheFocus(): void {
            show()
            keyClick(Qt.Key_Right)
            view.newProfile("default")
            const sheet = view.sheet
            for (const key of [Qt.Key_C, Qt.Key_L, Qt.Key_Right, Qt.Key_Menu, Qt.Key_Left, Qt.Key_Left, Qt.Key_Left])
                keyClick(key)
            keyClick(Qt.Key_F10, Qt.ShiftModifier)
            verify(sheet.activeFocus && !findChild(view, "strip").menu)
            mouseClick(sheet, sheet.width / 2, sheet.height / 2)
            keyClick(Qt.Key_Tab)
            keyClick(Qt.Key_Tab)
            keyClick(Qt.Key_2)
            compare(launchedInto(), "0 ")
            compare(view.picker.focused, "lavoro")
            sheet.confirm()
            tryVerify(() => view.sheet === null)
            compare(view.picker.focused, "cl")
            tryVerify(() => tile("cl") && tile("cl").activeFocus)
        }

        function test_damagedProfiles_AreReachedByTab_ButNotBehindASheet(): void {
            for (const id of ["a", "b"])
                home.write(`.claude-profiles/${id.repeat(60)}/.launcher.json`, "{")
            home.app.reload()
            show()
            const damaged = visibleItems(item => item instanceof DamagedProfiles, view)[0]
            const isLast = item => item instanceof Pressable && item.label.startsWith("Ripara «b")
            tryVerify(() => visibleItems(isLast, damaged).length === 1)
            const last = visibleItems(isLast, damaged)[0]
            last.forceActiveFocus(Qt.TabFocusReason)
            tryVerify(() => last.mapToItem(damaged, last.width, 0).x <= damaged.width + 0.5)
            verify(last.enabled)
            view.newProfile("")
            verify(!last.enabled)
        }

        function test_restingPointer_LeavesTheFocus(): void {
            for (let i = 0; i < 6; ++i)
                home.makeProfile("p" + i, {source: ""})
            show()
            mouseMove(view, 10, 10)
            mouseMove(tile("Lavoro"), 60, 60)
            compare(view.picker.focused, "default")
            mouseMove(tile("Lavoro"), 62, 60)
            compare(view.picker.focused, "lavoro")
            const strip = findChild(view, "strip")
            const last = strip.profiles.idNear(8)
            keyClick(Qt.Key_Left)
            keyClick(Qt.Key_Left)
            compare(view.picker.focused, last)
            let before = 0
            tryVerify(() => {
                const rests = before > 0 && strip.contentX === before
                before = strip.contentX
                return rests
            })
            waitForRendering(view)
            waitForRendering(view)
            compare(view.picker.focused, last)
        }

        function test_manyProfiles_FewTiles_TheFocusedOneInSight(): void {
            for (let i = 0; i < 60; ++i)
                home.makeProfile("Profilo " + String(i).padStart(3, "0"), {source: ""})
            show()
            keyClick(Qt.Key_Left)
            const last = () => tile("Studio")
            tryVerify(() => last() !== null)
            const isInSight = () => last().mapToItem(view, last().width, 0).x < view.width - Theme.picker.stripFade
            tryVerify(isInSight)
            Theme.textScale = 1.5
            tryVerify(isInSight)
            Theme.textScale = 1
            tryVerify(isInSight)
            verify(tile("Profilo 000") === null)
            keyClick(Qt.Key_Right)
            tryVerify(() => tile("Principale") && tile("Principale").mapToItem(view, 0, 0).x >= 0)
            verify(last() === null)
        }
    }
}
