// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import QtTest
import Selvane
import SelvaneTest
import ".."

/// Common code for the tests of the management window. A warning is a failure.
ViewTestCase {
    id: test

    property ManageView view: null

    readonly property TestHome home: TestHome {}
    readonly property Component viewComponent: Component {
        ManageView {
            anchors.fill: parent
            app: test.home.app
            updates: test.home.updates
        }
    }

    /// Opens the window on a profile, or on none if the id is empty, and waits until the profile is read.
    function show(profileId: string): void {
        // Qt itself says that when rows go while it is still making them.
        failOnWarning(/^(?!.*DelegateModel::cancel)/)
        home.app.select(profileId)
        view = createTemporaryObject(viewComponent, scene) as ManageView
        view.forceActiveFocus()
        if (profileId !== "")
            tryVerify(() => section("Skill").component.count !== "")
        settle()
    }
    function all(accepts: var, item = view): var {
        return visibleItems(accepts, item)
    }
    function the(accepts: var, item = view): Item {
        const found = all(accepts, item)
        compare(found.length, 1)
        return found[0]
    }
    function section(title: string): CollectionSection {
        return the(item => item instanceof CollectionSection && item.component.title === title) as CollectionSection
    }
    function list(title: string): ItemList {
        return the(item => item instanceof ItemList, section(title)) as ItemList
    }
    function button(label: string): Pressable {
        return the(item => item instanceof Pressable && item.label === label, scene.Window.contentItem) as Pressable
    }
    function buttons(label: string): int {
        return all(item => item instanceof Pressable && item.label === label).length
    }
    function hasFocus(item: Item): bool {
        return all(inside => inside.activeFocus, item).length > 0
    }
    /// Presses Tab until an item of the list has the focus.
    function enter(items: ItemList): void {
        for (let i = 0; i < 60 && !hasFocus(items); ++i)
            keyClick(Qt.Key_Tab)
        verify(hasFocus(items))
    }
    function write(text: string): void {
        for (const letter of text)
            keyClick(letter)
    }
}
