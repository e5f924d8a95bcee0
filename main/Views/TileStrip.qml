// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import Selvane

/// The tiles in a row, which scrolls sideways when they don't fit; behind them the way to a new profile.
ListView {
    id: strip

    required property ProfileListModel profiles
    required property string focused
    required property bool isCompact
    required property real margin


    signal launched(string profileId)
    signal settingsAsked(string profileId)
    signal hovered(string profileId)
    signal newProfileAsked

    /// Keeps the focused tile away from the edges.
    function showFocused(): void {
        const tile = strip.itemAtIndex(strip.currentIndex)
        if (tile === null)
            return
        const edge = Theme.stripEdge
        const leftmost = tile.x + tile.width + edge - strip.width
        const rightmost = tile.x - edge
        const last = Math.max(strip.originX - strip.margin,
                              strip.originX + strip.contentWidth + strip.rightMargin - strip.width)
        const wanted = Math.max(leftmost, Math.min(rightmost, strip.contentX))
        scrolling.to = Math.max(strip.originX - strip.margin, Math.min(last, wanted))
        scrolling.restart()
    }

    orientation: ListView.Horizontal
    boundsBehavior: Flickable.StopAtBounds
    leftMargin: margin
    rightMargin: margin + end.width + Theme.cardGap
    spacing: Theme.cardGap
    model: profiles
    currentIndex: profiles.count > 0 ? profiles.indexOf(focused) : -1
    highlightFollowsCurrentItem: false
    keyNavigationEnabled: false
    onCurrentIndexChanged: showFocused()

    Accessible.role: Accessible.List
    Accessible.name: qsTr("Profili")

    NumberAnimation on contentX {
        id: scrolling

        running: false
        duration: Theme.stripScroll
        easing.type: Easing.OutCubic
    }

    delegate: ProfileTile {
        id: tile

        required property string profileId

        y: Theme.stripSpare
        count: strip.profiles.count
        isFocused: profileId === strip.focused
        isCompact: strip.isCompact
        onLaunched: strip.launched(tile.profileId)
        onSettingsAsked: strip.settingsAsked(tile.profileId)
        onHovered: strip.hovered(tile.profileId)
    }
    Row {
        id: end

        readonly property real taken: strip.count * (Theme.tileWidth + Theme.cardGap) + Theme.addTileWidth
        readonly property real free: strip.width - 2 * strip.margin - taken
        readonly property int seats: Math.floor(free / (Theme.tileWidth + Theme.cardGap))

        parent: strip.contentItem
        x: strip.originX + strip.contentWidth + Theme.cardGap
        y: Theme.stripSpare
        spacing: Theme.cardGap

        AddProfileTile {
            isCompact: strip.isCompact
            onClicked: strip.newProfileAsked()
        }
        Repeater {
            model: strip.isCompact ? 0 : Math.max(0, Math.min(Theme.seatOpacities.length, end.seats))

            delegate: EmptySeat {
                required property int index

                opacity: Theme.seatOpacities[index]
            }
        }
    }
}
