// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import QtTest
import Selvane
import SelvaneTest

Item {
    id: scene

    TestHome { id: home }
    Component { id: newProfile; NewProfileSheet { app: home.app; initialSource: "default" } }
    Component { id: items; ImportSheet { app: home.app; target: "lavoro"; component: "skills" } }
    Component { id: sessions; SessionImportSheet { app: home.app; target: "lavoro" } }
    Component { id: backup; BackupSheet { app: home.app } }

    SheetTestCase {
        id: test

        name: "SheetLayout"

        function init(): void {
            home.begin()
        }
        function cleanup(): void {
            Theme.textScale = 1
        }

        function test_everyStopIsInSight_data() {
            const sheets = { newProfile: newProfile, items: items, sessions: sessions, backup: backup }
            const rows = []
            for (const name of Object.keys(sheets)) {
                for (const scale of [1, 1.5])
                    rows.push({ tag: name + " " + scale, component: sheets[name], scale: scale })
            }
            return rows
        }
        /// In the smallest window. End goes far down in the lists.
        function test_everyStopIsInSight(row): void {
            for (let i = 0; i < 30; ++i) {
                home.write(`.claude/skills/${i}.md`)
                home.addSession("Sessione " + i, "/srv/progetti")
            }
            home.makeProfile("Lavoro", { modes: { skills: "none" } })
            scene.width = Theme.picker.minimum.width
            scene.height = Theme.picker.minimum.height
            Theme.textScale = row.scale
            openSheet(row.component)
            settle()
            for (let stops = 0; nameOf(focused()) !== "Annulla"; ++stops) {
                verify(stops < 40)
                tryVerify(() => isInSight(focused()), nameOf(focused()))
                press(Qt.Key_End)
                tryVerify(() => isInSight(focused()), nameOf(focused()))
                press(Qt.Key_Tab)
            }
        }
    }
}
