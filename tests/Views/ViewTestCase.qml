// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import QtTest
import SelvaneTest

/// A test of views. It waits by handling events; what Qt has under the same names sleeps for 10 or 50 ms between two
/// looks. The scene around it is the window.
TestCase {
    id: test

    property Item scene: parent

    when: windowShown

    /// Lets layout and models do what they put off until the next frame.
    function settle(): void {
        verify(Events.handleFrame(test.scene))
    }
    function tryVerify(holds: var, message: var): void {
        verify(Events.handleUntil(holds), (message ?? "") + calledFrom())
    }
    function tryCompare(object: var, property: var, value: var): void {
        Events.handleUntil(() => object[property] === value)
        compare(object[property], value, calledFrom())
    }
    function press(...keys): void {
        for (const key of keys)
            keyClick(key)
    }
    /// The item itself and all below it that can be seen and that `accepts` returns true for.
    function visibleItems(accepts: var, item: Item): var {
        if (!item.visible)
            return []
        let found = accepts(item) ? [item] : []
        for (let i = 0; i < item.children.length; ++i)
            found = found.concat(visibleItems(accepts, item.children[i]))
        return found
    }
    function calledFrom(): string {
        return " at " + new Error().stack.split("\n")[2]
    }
}
