// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import Selvane

/// The tiles in a row that scrolls sideways if they don't fit, followed by the button for a new profile.
ListView {
    id: strip

    required property ProfileListModel profiles
    required property string focused
    required property bool showsFocused ///< lights the focused tile
    required property bool isCompact
    required property bool isSearched ///< shows only what a search has found
    required property real margin
    property var menu: null ///< a TileMenu, which isn't even loaded before it first opens

    signal launched(string profileId)
    signal settingsAsked(string profileId)
    signal pointedAt(string profileId)
    signal newProfileAsked(string source)

    /// Opens the focused tile's menu below its glyph, for the keyboard.
    function openMenu(): void {
        if (strip.currentItem) {
            strip.openMenuAt(strip.currentItem, Theme.space16, Theme.picker.tileNameTop)
            strip.menu.move(1)
        }
    }
    /// Opens the focused tile's menu at a point in the tile.
    function openMenuAt(tile: Item, x: real, y: real): void {
        if (!strip.menu)
            strip.makeMenu()
        strip.menu.profileId = strip.focused
        strip.menu.openAt(tile, x, y, 0)
    }
    function makeMenu(): void {
        strip.menu = Qt.createComponent("TileMenu.qml").createObject(strip, {app: strip.profiles.app})
        strip.menu.launched.connect(strip.launched)
        strip.menu.settingsAsked.connect(strip.settingsAsked)
        strip.menu.newProfileAsked.connect(strip.newProfileAsked)
    }
    readonly property real firstX: originX - leftMargin
    /// What the list says of its own width is a guess until it has made its last tile.
    readonly property real tilesWidth: count * pitch - Theme.cardGap
    readonly property real pitch: Theme.picker.tileWidth + Theme.cardGap ///< grows with the desktop's text scale
    /// Whether all tiles together, and what follows them, are wider than the strip.
    readonly property bool isLong: width > 0 && profiles.total * pitch + Theme.picker.addTileWidth > width - 2 * margin
    property bool hasSettled: false ///< until then, nothing is seen to scroll
    readonly property real lastX: Math.max(firstX, originX + tilesWidth + rightMargin - width)

    function scrollTo(x: real): void {
        scrolling.to = Math.max(strip.firstX, Math.min(strip.lastX, x))
        scrolling.restart()
        if (!strip.hasSettled)
            scrolling.complete()
    }
    /// Keeps the focused tile away from the edges.
    function showFocused(): void {
        if (strip.currentIndex < 0)
            return
        const left = strip.originX + strip.currentIndex * strip.pitch
        const leftmost = left + Theme.picker.tileWidth + Theme.picker.stripEdge - strip.width
        const rightmost = strip.currentIndex === 0 ? strip.firstX : left - Theme.picker.stripEdge
        strip.scrollTo(Math.max(leftmost, Math.min(rightmost, strip.contentX)))
    }
    /// Gives the keyboard focus to the focused tile.
    function takeFocus(): void {
        strip.forceLayout()
        const target = strip.currentItem ? strip.currentItem : strip
        target.forceActiveFocus(Qt.OtherFocusReason)
    }
    function settle(): void {
        strip.showFocused()
        scrolling.complete()
        strip.hasSettled = true
    }

    orientation: ListView.Horizontal
    boundsBehavior: Flickable.StopAtBounds
    leftMargin: margin
    rightMargin: margin + (isSearched ? 0 : end.width + Theme.cardGap)
    spacing: Theme.cardGap
    reuseItems: true
    model: profiles
    currentIndex: profiles.count > 0 ? profiles.indexOf(focused) : -1
    highlightFollowsCurrentItem: false
    keyNavigationEnabled: false
    onCurrentIndexChanged: showFocused()
    onCountChanged: showFocused()
    onWidthChanged: settling.restart()
    onPitchChanged: settling.restart()

    add: Transition {
        enabled: !Theme.reducedMotion

        NumberAnimation { property: "opacity"; from: 0; to: 1; duration: Theme.motion.tileFade }
    }
    // One that takes no time would leave the tiles where they were.
    remove: Transition {
        enabled: !Theme.reducedMotion

        NumberAnimation { property: "opacity"; to: 0; duration: Theme.motion.tileFade }
    }
    move: moving
    displaced: Transition {
        id: moving

        NumberAnimation { property: "x"; duration: Theme.motion.tileMove; easing.type: Easing.OutCubic }
        NumberAnimation { property: "opacity"; to: 1; duration: Theme.motion.tileFade } // where coming was cut short
    }

    Accessible.role: Accessible.List
    Accessible.name: qsTr("Profili")

    // The margins adapt to the width a moment later.
    Timer {
        id: settling

        interval: 0
        onTriggered: strip.settle()
    }
    NumberAnimation on contentX {
        id: scrolling

        running: false
        duration: Theme.motion.stripScroll
        easing.type: Easing.OutCubic
    }

    // Only a pointer that moves focuses a tile, not one that rests where a tile appears or scrolls to. Where
    // the pointer comes in isn't yet a movement.
    HoverHandler {
        id: pointer

        readonly property point place: point.scenePosition
        property bool isInside: false

        onHoveredChanged: pointer.isInside = false
        onPlaceChanged: {
            const place = strip.mapFromItem(null, pointer.place.x, pointer.place.y)
            const tile = strip.itemAt(strip.contentX + place.x, strip.contentY) as ProfileTile
            if (pointer.isInside && pointer.hovered && tile)
                strip.pointedAt(tile.profileId)
            pointer.isInside = pointer.hovered
        }
    }
    // A mouse wheel turns only one way, so it moves one tile per notch (120 units).
    WheelHandler {
        orientation: Qt.Vertical
        acceptedDevices: PointerDevice.Mouse
        onWheel: event => strip.scrollTo((scrolling.running ? scrolling.to : strip.contentX)
                                         - event.angleDelta.y / 120 * Theme.picker.tileWidth)
    }
    StripFade {
        parent: strip
        visible: strip.contentX > strip.firstX + Theme.hairline
    }
    StripFade {
        parent: strip
        visible: strip.contentX < strip.lastX - Theme.hairline
        isRight: true
    }

    delegate: ProfileTile {
        id: tile

        required property string profileId

        // From Qt 6.8 on, a list also decides where its items lie across it.
        transform: Translate { y: Theme.picker.stripSpare }
        count: strip.profiles.count
        isFocused: profileId === strip.focused
        isLit: isFocused && strip.showsFocused
        isCompact: strip.isCompact
        hasDigit: !strip.isSearched
        onLaunched: strip.launched(tile.profileId)
        onSettingsAsked: strip.settingsAsked(tile.profileId)
        onMenuAsked: (x, y) => {
            strip.pointedAt(tile.profileId)
            strip.openMenuAt(tile, x, y)
        }
    }
    StripEnd {
        id: end

        // Outside the scrolled item: inside it, Tab would reach this before the tiles.
        parent: strip
        x: strip.originX + strip.contentWidth + Theme.cardGap - strip.contentX
        y: Theme.picker.stripSpare
        visible: !strip.isSearched
        tiles: strip.count
        free: strip.width - 2 * strip.margin
        isCompact: strip.isCompact
        onNewProfileAsked: strip.newProfileAsked(strip.focused)
    }
}
