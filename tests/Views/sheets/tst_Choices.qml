// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import QtTest
import Selvane
import SelvaneTest

Item {
    id: scene

    width: 700
    height: 500

    TestHome { id: home }
    DropDown {
        id: modes

        labels: ["Unificato", "Separato", "Esteso", "Vuoto"]
        currentIndex: 1
    }
    ToggleSwitch {
        id: toggle

        y: 60
        label: "Chiudi dopo l'avvio"
        checked: false
    }
    SymbolGrid {
        id: grid

        y: 120
        selection: "briefcase"
    }
    LookChooser {
        id: look

        property profileLook plain

        y: 300
        look: plain.withSymbol("cart").withColor("Lago")
        picksOnMove: true
    }
    ContextMenu {
        id: menu

        MenuEntry { id: first; text: "Avvia" }
        MenuDivider {}
        MenuEntry { text: "Spento"; enabled: false }
        MenuEntry { id: last; text: "Mostra" }
    }

    SignalSpy { id: chosen; target: modes; signalName: "chosen" }
    SignalSpy { id: toggled; target: toggle; signalName: "toggled" }
    SignalSpy { id: picked; target: grid; signalName: "picked" }
    SignalSpy { id: pickedLook; target: look; signalName: "picked" }
    SignalSpy { id: triggered; target: last; signalName: "triggered" }

    TestCase {
        name: "Choices"
        when: windowShown

        function init() {
            for (const spy of [chosen, toggled, picked, pickedLook, triggered])
                spy.clear()
        }
        function cleanup() {
            menu.close()
        }

        function test_dropDownByKeyboard_data() {
            return [
                { tag: "arrow", keys: [Qt.Key_Down, Qt.Key_Return], index: 2 },
                { tag: "stops at the end", keys: [Qt.Key_End, Qt.Key_Down, Qt.Key_Space], index: 3 },
                { tag: "letter", keys: [Qt.Key_V, Qt.Key_Enter], index: 3 },
                { tag: "letter from the beginning", keys: [Qt.Key_End, Qt.Key_U, Qt.Key_Return], index: 0 },
                { tag: "escape chooses nothing", keys: [Qt.Key_Home, Qt.Key_Escape], index: -1 },
                { tag: "tab chooses nothing", keys: [Qt.Key_Home, Qt.Key_Tab], index: -1 }
            ]
        }
        function test_dropDownByKeyboard(row) {
            modes.forceActiveFocus()
            keyClick(Qt.Key_Space)
            verify(modes.menu.isOpen)
            for (const key of row.keys)
                keyClick(key)
            verify(!modes.menu.isOpen)
            verify(modes.activeFocus)
            compare(chosen.count, row.index < 0 ? 0 : 1)
            if (row.index >= 0)
                compare(chosen.signalArguments[0][0], row.index)
        }

        function test_dropDownClosesByAPressOutside() {
            mouseClick(modes)
            verify(modes.menu.isOpen)
            mouseClick(scene, 600, 450)
            verify(!modes.menu.isOpen)
            compare(chosen.count, 0)
        }

        function test_switchAsksBySpaceAndMouseOnly() {
            toggle.forceActiveFocus()
            keyClick(Qt.Key_Space)
            home.repeatKey(scene.Window.window, Qt.Key_Space)
            keyClick(Qt.Key_Return)
            compare(toggled.count, 1)
            compare(toggled.signalArguments[0][0], true)
            mouseClick(toggle)
            compare(toggled.count, 2)
            compare(toggle.checked, false)
        }

        function test_symbolGridMovesByArrows_data() {
            return [
                { tag: "right", keys: [Qt.Key_Right], symbol: "building.2" },
                { tag: "down", keys: [Qt.Key_Down], symbol: "atom" },
                { tag: "stays in the last row", keys: [Qt.Key_Down, Qt.Key_Down, Qt.Key_Down], symbol: "star" },
                { tag: "stays in the first row", keys: [Qt.Key_Up, Qt.Key_Left], symbol: "house" },
                { tag: "end", keys: [Qt.Key_End], symbol: "sparkles" },
                { tag: "home", keys: [Qt.Key_End, Qt.Key_Home], symbol: "person.crop.circle" },
                { tag: "no cell there", keys: Array(9).fill(Qt.Key_Right).concat(Qt.Key_Down, Qt.Key_Down), symbol: "car" }
            ]
        }
        function test_symbolGridMovesByArrows(row) {
            grid.moveTo(grid.symbols.indexOf("briefcase"))
            for (const key of row.keys)
                keyClick(key)
            compare(picked.count, 0)
            keyClick(Qt.Key_Space)
            compare(picked.count, 1)
            compare(picked.signalArguments[0][0], row.symbol)
        }

        function test_colours_AreReachedFromTheSymbolsAndKeepTheSymbol(): void {
            look.begin()
            keyClick(Qt.Key_Down) // to the last row of the symbols
            keyClick(Qt.Key_Down)
            keyClick(Qt.Key_Left)
            keyClick(Qt.Key_Home)
            const colors = Array.from(pickedLook.signalArguments, each => each[0]).map(each => each.symbol + each.color)
            compare(colors, ["pawprintLago", "cartGenziana", "cart"])
            const ringed = () => scene.Window.activeFocusItem
            compare([ringed().label, ringed().help], ["Nessuna", "Nessuna"])
            keyClick(Qt.Key_Up)
            verify(ringed() instanceof SymbolCell)
        }

        function test_menuSkipsWhatCannotBeTriggered() {
            modes.forceActiveFocus()
            menu.openAt(scene, 300, 0, 0)
            keyClick(Qt.Key_Down)
            verify(first.activeFocus)
            keyClick(Qt.Key_Down)
            verify(last.activeFocus)
            keyClick(Qt.Key_Down)
            verify(first.activeFocus)
            keyClick(Qt.Key_End)
            verify(last.activeFocus)
            keyClick(Qt.Key_Home)
            verify(first.activeFocus)
            keyClick(Qt.Key_Up)
            keyClick(Qt.Key_Return)
            compare(triggered.count, 1)
            verify(!menu.isOpen)
            verify(modes.activeFocus)
        }
    }
}
