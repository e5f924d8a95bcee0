// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import QtTest
import Selvane
import SelvaneTest
import ".."

/// The feedback of two windows over one application; one of them is the key window.
Item {
    id: scene

    property int leaked: 0 ///< keys that nothing above has taken

    width: 800
    height: 600
    Keys.onPressed: ++leaked

    TestHome { id: home }
    Component {
        id: pair

        Item {
            property alias key: key
            property alias other: other

            anchors.fill: parent

            FocusScope {
                anchors.fill: parent
                focus: true
            }
            LauncherFeedback {
                id: other

                app: home.app
                isKey: false
            }
            LauncherFeedback {
                id: key

                app: home.app
                isKey: true
                noticeDuration: 400
            }
        }
    }
    Component { id: busy; BusyOverlay { message: "" } }
    Component { id: field; TextInput { text: "testo" } }
    Component { id: emptying; EmptyingLeaf { filled: 1 } }
    ProfileDetailModel { id: detail; app: home.app }
    SignalSpy { id: newProfile; signalName: "newProfileAsked" }

    ViewTestCase {
        id: test

        name: "Feedback"

        property Item windows: null
        property LauncherFeedback key: null
        property LauncherFeedback other: null

        function init(): void {
            home.begin()
            windows = createTemporaryObject(pair, scene)
            key = windows.key
            other = windows.other
        }

        function notice(feedback: LauncherFeedback): string {
            return findChild(feedback, "toast").text
        }

        function test_notice_KeepsClearOfASidebar_WhileThereIsRoom(): void {
            const toast = findChild(key, "toast")
            const plate = Array.from(toast.children).find(item => item instanceof LeafShape)
            home.makeProfile("Lavoro")
            home.app.sync("lavoro")
            tryVerify(() => plate.width > Theme.sheets.toastHeight)
            for (const aside of [0, 272]) {
                key.noticesAside = aside
                fuzzyCompare(plate.x + plate.width / 2, (aside + scene.width) / 2, 1)
            }
            key.noticesAside = scene.width - 60
            compare(plate.x + plate.width, scene.width - Theme.sheets.toastMargin)
        }

        function test_notice_OnlyInKeyWindow_GoesAfterAWhile_NewerOneStaysItsOwn(): void {
            home.makeProfile("Lavoro")
            home.app.sync("lavoro")
            compare(notice(key), "Già sincronizzato")
            compare(notice(other), "")
            wait(250)
            const again = Date.now()
            home.app.sync("lavoro")
            wait(250) // longer than the first one would have stayed
            if (Date.now() - again < 350)
                compare(notice(key), "Già sincronizzato")
            tryVerify(() => notice(key) === "")
            compare(home.app.notice, "")
        }

        /// Whether pixels of this text's colour are on the screen.
        function isPainted(root: Item, text: string): bool {
            const captions = [root]
            for (let i = 0; i < captions.length; ++i)
                captions.push(...Array.from(captions[i].children))
            const caption = captions.find(item => item instanceof Text && item.text === text)
            if (!caption)
                return false
            const image = grabImage(scene)
            const place = caption.mapToItem(scene, 0, 0)
            const ink = caption.color
            let inked = 0
            for (let x = Math.ceil(place.x); x < place.x + caption.width; ++x) {
                for (let y = Math.ceil(place.y); y < place.y + caption.height; ++y) {
                    const far = [image.red(x, y) / 255 - ink.r, image.green(x, y) / 255 - ink.g, image.blue(x, y) / 255 - ink.b]
                    inked += far.every(distance => Math.abs(distance) < 0.1) ? 1 : 0
                }
            }
            return inked > 20
        }
        function test_noticeAndBusyText_ArePainted(): void {
            key.noticeDuration = 60000
            home.makeProfile("Lavoro")
            home.app.sync("lavoro")
            tryVerify(() => isPainted(findChild(key, "toast"), "Già sincronizzato"))
            const overlay = createTemporaryObject(busy, scene)
            overlay.message = "Backup in corso…"
            tryVerify(() => isPainted(overlay, "Backup in corso…"))
            scene.leaked = 0
            keyClick(Qt.Key_1)
            compare(scene.leaked, 0)
        }

        function test_alerts_OneAtATime_ErrorFirst(): void {
            home.makeProfile("Lavoro", {account: "default"})
            home.openClaude("default")
            home.app.launch("lavoro")
            compare(key.alert.title, "Account già aperto in Claude")
            verify(key.alert.message.startsWith("«Principale» usa lo stesso account Claude ed è aperto"))
            verify(!other.alert)

            home.app.setAccount("..", "lavoro") // not a valid account
            home.app.launch("lavoro")
            compare(key.alert.title, "Errore")
            keyClick(Qt.Key_Return)
            compare(home.app.errorMessage, "")
            compare(Array.from(key.children).filter(item => item instanceof AlertDialog && item.isOpen).length, 1)
            compare(key.alert.title, "Account già aperto in Claude")
            keyClick(Qt.Key_Escape)
            compare(home.app.pendingLaunch, "")
            tryVerify(() => !key.alert)
            compare(home.asked().terminated, 0)
        }

        function test_accountOpen_Confirmed_ClosesAndLaunches(): void {
            home.makeProfile("Lavoro", {account: "default"})
            home.openClaude("default")
            home.app.launch("lavoro")
            keyClick(Qt.Key_Return) // begins on "Annulla"
            compare(home.app.pendingLaunch, "")
            compare(home.asked().terminated, 0)
            tryVerify(() => !key.alert)
            home.app.launch("lavoro")
            keyClick(Qt.Key_Tab)
            keyClick(Qt.Key_Return)
            tryVerify(() => home.asked().launches === 1)
            compare(home.asked().terminated, 1)
            tryVerify(() => home.asked().ends === 1)
        }

        function test_claudeStays_ForceIsOffered_AndNotTheDefault(): void {
            home.makeProfile("Lavoro", {account: "default"})
            home.openClaude("default")
            home.ignoreTerminations(1000)
            home.app.launch("lavoro")
            home.app.confirmLaunch()
            tryVerify(() => key.alert !== null && key.alert.title === "Claude non si è chiuso")
            keyClick(Qt.Key_Return)
            compare(home.app.offerForceQuit, "")
            compare(home.asked().forced, 0)

            home.app.launch("lavoro")
            home.app.confirmLaunch()
            tryVerify(() => home.app.offerForceQuit === "lavoro")
            keyClick(Qt.Key_Tab)
            keyClick(Qt.Key_Return)
            tryVerify(() => home.asked().launches === 1)
            verify(home.asked().forced > 0)
        }

        function test_secondError_ReplacesTheFirst(): void {
            home.makeProfile("Lavoro")
            home.makeProfile("Studio")
            home.app.setAccount("..", "lavoro")
            home.app.launch("lavoro")
            const first = key.alert.message
            home.write(".claude-profiles/studio/.launcher.json", "{")
            home.app.sync("studio")
            verify(home.app.errorMessage !== first)
            compare(key.alert.message, home.app.errorMessage)
        }

        function test_notice_StaysUntilTheApplicationIsActive(): void {
            key.isActive = false
            home.makeProfile("Lavoro")
            home.app.sync("lavoro")
            wait(500)
            compare(notice(key), "Già sincronizzato")
            key.isActive = true
            tryVerify(() => notice(key) === "")
        }

        /// A notice that can be taken back.
        function deleteProfile(): void {
            home.makeProfile("Lavoro")
            detail.remove("lavoro")
            tryCompare(home.app, "notice", "Profilo «Lavoro» spostato nel Cestino")
            verify(home.app.canTakeBack)
        }
        function isBack(): bool {
            return home.what(".claude-profiles/lavoro") === "/"
        }

        function test_offer_IsTakenWithItsKey_ButNotWhileTyping(): void {
            deleteProfile()
            const text = createTemporaryObject(field, scene)
            text.forceActiveFocus()
            keyClick(Qt.Key_Z, Qt.ControlModifier)
            verify(home.app.canTakeBack)
            text.focus = false
            keyClick(Qt.Key_Z, Qt.ControlModifier)
            tryCompare(home.app, "notice", "Profilo «Lavoro» rimesso al suo posto")
            verify(isBack())
            verify(!home.app.canTakeBack)
            compare(home.app.selection, "lavoro")
            tryVerify(() => notice(key) === "")
        }

        function test_offer_GetsTheFocusOnlyWhenAsked_AndGivesItBack(): void {
            const button = findChild(key, "toastAction")
            deleteProfile()
            tryCompare(button, "label", "Annulla")
            const before = scene.Window.activeFocusItem
            verify(!button.activeFocus)
            keyClick(Qt.Key_F6)
            verify(button.activeFocus)
            keyClick(Qt.Key_Escape)
            compare(scene.Window.activeFocusItem, before)
            keyClick(Qt.Key_F6)
            keyClick(Qt.Key_Return)
            tryVerify(isBack)
            verify(!button.activeFocus)
        }

        function test_offer_LastsWhileSomebodyMayTakeIt(): void {
            const toast = findChild(key, "toast")
            const button = findChild(key, "toastAction")
            key.offerDuration = 300
            key.isActive = false
            deleteProfile()
            wait(400)
            compare(toast.remaining, 1)
            key.isActive = true
            tryVerify(() => toast.remaining < 1)
            mouseMove(button)
            tryVerify(() => toast.isHeld)
            const left = toast.remaining
            wait(400)
            compare(toast.remaining, left)
            keyClick(Qt.Key_F6)
            mouseMove(scene, 1, 1)
            wait(400)
            compare(toast.remaining, left)
            keyClick(Qt.Key_Escape)
            tryVerify(() => notice(key) === "")
            verify(!home.app.canTakeBack)
            verify(!isBack())
        }

        function test_offer_GoesWithItsNotice(): void {
            deleteProfile()
            home.makeProfile("Studio")
            home.app.sync("studio")
            compare(notice(key), "Già sincronizzato")
            keyClick(Qt.Key_Z, Qt.ControlModifier)
            keyClick(Qt.Key_F6)
            verify(!findChild(key, "toastAction").activeFocus)
            verify(!isBack())
        }

        function test_offer_ChangedMeanwhile_SaysSoAndDoesNothing(): void {
            deleteProfile()
            home.write(".claude-profiles/lavoro/nota.md", "di altri")
            home.act(findChild(key, "toastAction"), "Press")
            tryVerify(() => home.app.errorMessage.startsWith("\"lavoro\" è cambiato nel frattempo"))
            compare(home.what(".claude-profiles/lavoro/nota.md"), "di altri")
        }

        function test_leaf_WithReducedMotion_EmptiesInFourSteps(): void {
            const leaf = createTemporaryObject(emptying, scene)
            leaf.filled = 0.6
            compare(leaf.shown, 0.6)
            Theme.reducedMotion = true
            compare([1, 0.76, 0.6, 0.5, 0.1, 0].map(filled => {
                leaf.filled = filled
                return leaf.shown
            }), [1, 1, 0.75, 0.5, 0.25, 0])
            Theme.reducedMotion = false
        }

        function test_busy_TakesAllKeys(): void {
            home.makeProfile("Lavoro", {account: "default"})
            home.openClaude("default")
            home.ignoreTerminations(1000)
            home.app.launch("lavoro")
            home.app.confirmLaunch()
            verify(home.app.busyMessage !== "")
            verify(scene.Window.activeFocusItem instanceof BusyOverlay)
            newProfile.target = key
            newProfile.clear()
            key.offerNewProfile()
            compare(newProfile.count, 0)
            tryCompare(home.app, "busyMessage", "")
        }

        function test_newProfile_KeyWindowAnswers_NotOverAQuestion(): void {
            newProfile.target = other
            newProfile.clear()
            other.offerNewProfile()
            compare(newProfile.count, 0)
            newProfile.target = key
            newProfile.clear()
            key.offerNewProfile()
            compare(newProfile.count, 1)
            home.makeProfile("Lavoro")
            home.app.setAccount("..", "lavoro")
            home.app.launch("lavoro")
            compare(key.alert.title, "Errore")
            key.offerNewProfile()
            compare(newProfile.count, 1)
        }
    }
}
