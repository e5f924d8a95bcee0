// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import QtTest
import Selvane

Item {
    id: scene

    width: 700
    height: 500

    GhostButton {
        id: behind

        text: "Nuovo profilo"
    }
    Component {
        id: sheetComponent

        Sheet {
            title: "Nuovo profilo"
            confirmText: "Crea profilo"

            property alias nameField: nameField
            property alias accepts: accepts

            TextInputField { id: nameField; label: "Nome" }
            CheckBoxRow { id: accepts; text: "code-review"; checked: true }
        }
    }
    Component {
        id: alertComponent

        AlertDialog {
            title: "Spostare «Lavoro» nel Cestino?"
            message: "La cartella del profilo verrà spostata nel Cestino."
            confirmText: "Sposta nel Cestino"
        }
    }
    HeaderField {
        id: header

        y: 60
        label: "Nome"
        value: "Lavoro"
    }

    Component {
        id: otherWindow

        Window {
            visible: true
        }
    }

    SignalSpy { id: confirmed; signalName: "confirmed" }
    SignalSpy { id: cancelled; signalName: "cancelled" }
    SignalSpy { id: closed; signalName: "closed" }
    SignalSpy { id: submitted; target: header; signalName: "submitted" }
    SignalSpy { id: behindClicked; target: behind; signalName: "clicked" }

    TestCase {
        id: test

        name: "Sheets"
        when: windowShown

        function open(component, properties): Item {
            behind.forceActiveFocus()
            const layer = createTemporaryObject(component, scene, properties)
            for (const spy of [confirmed, cancelled, closed]) {
                spy.target = layer
                spy.clear()
            }
            return layer
        }

        function test_answersByKeyboard_data() {
            return [
                { tag: "Return", enabled: true, key: Qt.Key_Return, confirms: 1, cancels: 0 },
                { tag: "Enter", enabled: true, key: Qt.Key_Enter, confirms: 1, cancels: 0 },
                { tag: "Escape", enabled: true, key: Qt.Key_Escape, confirms: 0, cancels: 1 },
                { tag: "Return when disabled", enabled: false, key: Qt.Key_Return, confirms: 0, cancels: 0 }
            ]
        }
        function test_answersByKeyboard(row) {
            const sheet = open(sheetComponent, { confirmEnabled: row.enabled })
            verify(sheet.nameField.activeFocus)
            keyClick(row.key)
            keyClick(row.key)
            compare(confirmed.count, row.confirms)
            compare(cancelled.count, row.cancels)
            tryCompare(closed, "count", row.confirms + row.cancels)
            compare(behind.activeFocus, closed.count > 0)
        }

        function test_focusStaysInside() {
            const sheet = open(sheetComponent, {})
            for (const key of [Qt.Key_Tab, Qt.Key_Backtab]) {
                const seen = new Set()
                for (let i = 0; i < 8; ++i) {
                    verify(!behind.activeFocus && sheet.activeFocus)
                    seen.add(scene.Window.activeFocusItem)
                    keyClick(key)
                }
                compare(seen.size, 4) // the field, the box and the two buttons
            }
        }

        function test_nothingBehindIsPressed() {
            behindClicked.clear()
            open(sheetComponent, {})
            mouseClick(behind)
            compare(behindClicked.count, 0)
        }

        function test_alertBeginsWhereNothingIsLost_data() {
            return [
                { tag: "plain", destructive: false, confirms: 1 },
                { tag: "destructive", destructive: true, confirms: 0 }
            ]
        }
        function test_alertBeginsWhereNothingIsLost(row) {
            open(alertComponent, { destructive: row.destructive })
            keyClick(Qt.Key_Space)
            compare(confirmed.count, row.confirms)
            compare(cancelled.count, 1 - row.confirms)
        }

        function test_headerFieldSubmitsAndReverts() {
            submitted.clear()
            header.forceActiveFocus()
            keySequence("Ctrl+A")
            keyClick(Qt.Key_X)
            keyClick(Qt.Key_Return)
            compare(submitted.signalArguments[0][0], "x")
            keyClick(Qt.Key_Y)
            keyClick(Qt.Key_Escape)
            keyClick(Qt.Key_Return)
            compare(submitted.count, 1)
        }

        function test_openedInTheBackground_TheFocusComesBack(): void {
            behind.forceActiveFocus()
            const other = createTemporaryObject(otherWindow, null)
            other.requestActivate()
            tryVerify(() => other.active && !behind.activeFocus)
            const layer = createTemporaryObject(alertComponent, scene)
            scene.Window.window.requestActivate()
            tryVerify(() => layer.activeFocus)
            layer.cancel()
            tryVerify(() => behind.activeFocus)
        }
    }
}
