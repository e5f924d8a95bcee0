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

    width: 1000
    height: 700

    TestHome { id: home }
    Component {
        id: viewComponent

        ManageView {
            anchors.fill: parent
            app: home.app
            updates: home.updates
        }
    }

    ViewTestCase {
        name: "Conversations"

        property ManageView view: null

        readonly property string transcript: "/projects/-srv-sito/"
        readonly property string places: ".config/Claude/claude-code-sessions/account/"

        function init(): void {
            home.begin()
            home.app.closeAfterLaunch = false
        }
        function the(accepts: var): Item {
            const found = visibleItems(accepts, view)
            compare(found.length, 1, calledFrom())
            return found[0]
        }
        function rows(): var {
            return visibleItems(item => item instanceof ConversationRow, view).map(row => row.title)
        }
        function button(label: string): Pressable {
            return the(item => item instanceof Pressable && item.label === label)
        }
        function type(text: string): void {
            for (const letter of text)
                keyClick(letter)
            settle()
        }
        function says(folder: string, id: string, words: string, time: string): void {
            home.write(folder + transcript + id + ".jsonl",
                       JSON.stringify({type: "user", cwd: "/srv/sito", timestamp: time,
                                       message: {role: "user", content: words}}) + "\n")
        }
        function show(): void {
            home.app.reload()
            home.app.select("default")
            view = createTemporaryObject(viewComponent, scene)
            view.forceActiveFocus()
            settle()
            keyClick(Qt.Key_F, Qt.ControlModifier)
        }
        /// Three conversations: one from the app, one from a terminal, one of which only the record is left.
        function open(): void {
            failOnWarning(/./)
            home.makeProfile("Lavoro")
            home.write(".claude.json", "{}")
            home.write(places + "org/local_1.json", JSON.stringify(
                {sessionId: "local_1", cliSessionId: "uno", title: "Prezzi", cwd: "/srv/sito", lastActivityAt: 3e12}))
            home.write(places + "org/local_2.json", JSON.stringify(
                {sessionId: "local_2", cliSessionId: "gone", title: "Perduta", cwd: "/srv/altro", lastActivityAt: 1e12}))
            says(".claude", "uno", "cambia i listini", "2026-01-02T10:00:00Z")
            says(".claude", "due", "perché fallisce?", "2026-01-03T10:00:00Z")
            show()
            tryVerify(() => rows().length === 3)
        }

        function test_none_IsExplained_UntilThereAreSome(): void {
            const explained = () => visibleItems(
                item => item instanceof StyledText && item.text.startsWith("Ancora nessuna conversazione"), view)
            show()
            tryVerify(() => explained().length === 1)
            for (let i = 100; i < 200; ++i)
                says(".claude", `a-${i}`, `numero ${i}`, `2026-01-02T10:00:00.${i}Z`)
            home.app.reload()
            tryVerify(() => rows().length > 0)
            compare(explained(), [])
            findChild(view, "conversations").forceActiveFocus()
            press(Qt.Key_End)
            tryVerify(() => rows().includes("numero 100"))
            verify(!rows().includes("numero 199"), "a row that is kept for later is told")
        }

        function test_typing_FindsAndGoesOnWithOne(): void {
            open()
            compare(rows(), ["Prezzi", "perché fallisce?", "Perduta"])
            verify(visibleItems(item => item.text === "3 conversazioni in 2 profili", view).length > 0)
            type("PERCHE sito")
            compare(rows(), ["perché fallisce?"])
            press(Qt.Key_Down, Qt.Key_Return)
            const sheet = the(item => item instanceof ContinuationSheet)
            tryVerify(() => sheet.confirmEnabled)
            compare(sheet.confirmText, "Continua in «Lavoro»")
            keyClick(Qt.Key_Return)
            tryVerify(() => home.asked().clipboard !== "")
            verify(home.asked().clipboard.endsWith("lavoro --resume due"), home.asked().clipboard)
            verify(home.what(".claude-profiles/lavoro" + transcript + "due.jsonl").includes("fallisce"))
            tryVerify(() => visibleItems(item => item instanceof ConversationRow
                                                 && item.profiles.includes("Lavoro"), view).length === 1)

            tryVerify(() => visibleItems(item => item instanceof ContinuationSheet, view).length === 0)
            press(Qt.Key_Escape)
            tryVerify(() => rows().length === 3)
            press(Qt.Key_Escape)
            compare(rows(), [])
        }

        function test_text_IsFoundInTranscripts(): void {
            open()
            type("listini")
            compare(rows(), [])
            button("Cerca nel testo").clicked()
            tryVerify(() => rows().length === 1)
            compare(rows(), ["Prezzi"])
            verify(the(item => item instanceof ConversationRow).excerpt.includes("cambia i listini"))
            press(Qt.Key_Backspace)
            compare(rows(), [])
        }

        function test_filtersAndCommands_AreOnlyForWhatIsThere(): void {
            open()
            button("App").clicked()
            compare(rows(), ["perché fallisce?"])
            button("App").clicked()
            button("Terminale").clicked()
            compare(rows(), ["Prezzi", "Perduta"])
            press(Qt.Key_Down, Qt.Key_Down)
            verify(!button("Continua in…").available && !button("Copia comando").available)
            press(Qt.Key_Return)
            compare(visibleItems(item => item instanceof ContinuationSheet, view).length, 0)
            press(Qt.Key_Up)
            keyClick(Qt.Key_C, Qt.ControlModifier | Qt.ShiftModifier)
            verify(home.asked().clipboard.startsWith("cd /srv/sito && "))
            button("Mostra").clicked()
            compare(String(home.asked().revealed), "~/.claude" + transcript + "uno.jsonl")
        }

        function test_organisation_IsChosenWhereThereAreSeveral(): void {
            open()
            const other = ".claude-profiles/.desktop-data/lavoro/claude-code-sessions/a/"
            home.write(other + "nuova/local_8.json", "{}")
            home.write(other + "vecchia/local_9.json", "{}")
            press(Qt.Key_Down, Qt.Key_Return)
            const sheet = the(item => item instanceof ContinuationSheet)
            tryVerify(() => visibleItems(item => item instanceof ContinuationTarget, sheet).length === 3)
            const second = visibleItems(item => item instanceof ContinuationTarget, sheet)[2]
            const folder = second.shortId
            second.chosen()
            tryVerify(() => sheet.confirmEnabled)
            verify(second.checked)
            keyClick(Qt.Key_Return)
            tryVerify(() => home.asked().launches === 1)
            verify(home.what(other + folder + "/local_1.json").includes("Prezzi"))
        }

        function test_chosenProfile_IsInSight_AmongMany(): void {
            for (const name of ["Aurora", "Borea", "Laboratorio", "Scrittura", "Studio", "Vela"])
                home.makeProfile(name)
            open()
            press(Qt.Key_Down, Qt.Key_Return)
            const sheet = the(item => item instanceof ContinuationSheet)
            tryVerify(() => sheet.confirmEnabled)
            const well = visibleItems(item => item instanceof ListWell, sheet)[0]
            const targets = visibleItems(item => item instanceof ContinuationTarget, sheet)
            const place = targets.find(target => target.checked).mapToItem(well, 0, 0)
            verify(place.y >= 0 && place.y < well.height, place.y)
        }

        function test_organisation_IsNotAskedForATerminalsConversation(): void {
            open()
            const other = ".claude-profiles/.desktop-data/lavoro/claude-code-sessions/a/"
            home.write(other + "nuova/local_8.json", "{}")
            home.write(other + "vecchia/local_9.json", "{}")
            press(Qt.Key_Down, Qt.Key_Down, Qt.Key_Return)
            const sheet = the(item => item instanceof ContinuationSheet)
            tryVerify(() => sheet.confirmEnabled)
            compare(visibleItems(item => item instanceof ContinuationTarget, sheet).length, 1)
        }
    }
}
