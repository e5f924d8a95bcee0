// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import QtTest
import Selvane
import ".."

/// Common code for the tests of the sheets. A warning is a failure.
ViewTestCase {
    id: test

    property Sheet sheet: null

    readonly property SignalSpy closed: SignalSpy { signalName: "closed" }

    function openSheet(component: Component, properties): void {
        failOnWarning(/./)
        test.sheet = createTemporaryObject(component, test.scene, properties ?? {}) as Sheet
        closed.target = test.sheet
        closed.clear()
    }
    function press(...keys): void {
        for (const key of keys)
            keyClick(key)
        settle()
    }
    function focused(): Item {
        return test.scene.Window.activeFocusItem
    }
    function nameOf(item: Item): string {
        return item.Accessible.name
    }
    /// Presses Tab until the control with this name has the focus.
    function tabTo(name: string): void {
        for (let i = 0; i < 60 && nameOf(focused()) !== name; ++i)
            keyClick(Qt.Key_Tab)
        compare(nameOf(focused()), name)
        settle()
    }
    function write(text: string): void {
        for (const letter of text)
            keyClick(letter)
    }
    function shows(text: string): bool {
        return itemsOf(test.sheet).some(item => item.visible && item.text === text)
    }
    function itemsOf(item: Item): var {
        const all = [item]
        for (let i = 0; i < all.length; ++i) {
            for (let child = 0; child < all[i].children.length; ++child)
                all.push(all[i].children[child])
        }
        return all
    }
    /// Whether the whole item is inside the window's margin and every view that it scrolls in.
    function isInSight(item: Item): bool {
        const margin = Theme.sheets.margin
        const inWindow = item.mapToItem(test.scene, 0, 0, item.width, item.height)
        if (inWindow.x < margin || inWindow.right > test.scene.width - margin || inWindow.y < margin
                || inWindow.bottom > test.scene.height - margin)
            return false
        for (let view = item.parent; view !== test.scene; view = view.parent) {
            const place = item.mapToItem(view, 0, 0, item.width, item.height)
            if (view instanceof Flickable && (place.y < -0.5 || place.bottom > view.height + 0.5))
                return false
        }
        return true
    }
    function confirm(): void {
        verify(test.sheet.confirmEnabled)
        keyClick(Qt.Key_Return)
        tryCompare(closed, "count", 1)
    }
}
