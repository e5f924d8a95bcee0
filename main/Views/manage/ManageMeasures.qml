// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick

/// The measures of the management window.
Measures {
    // ---- Window

    readonly property size window: Qt.size(1000, 700)
    readonly property size minimum: Qt.size(880, 600)

    // ---- Sidebar

    readonly property real sidebarWidth: 272
    readonly property real sidebarMargin: 20
    readonly property real listTop: scaled(48)
    readonly property real listInset: 12
    readonly property real listFade: 16 ///< at the top of a list that is scrolled
    readonly property real profileHeight: scaled(52)
    readonly property real profileGap: 4
    readonly property real profileGlyph: 32
    readonly property real damagedHeight: 3 * profileHeight ///< at most, for the damaged ones
    readonly property real markGap: 7
    readonly property real markLeaf: 9
    readonly property real markTip: 1
    readonly property real markDot: 8

    // ---- Detail

    readonly property real column: 960 ///< at most
    readonly property real detailMargin: 24
    readonly property real narrowDetail: scaled(680) ///< below this width, the narrow layout applies
    readonly property real toolBarHeight: scaled(48)
    readonly property real toolBarInset: 14
    readonly property real toolBarInsetNarrow: 20
    readonly property real toolBarNote: scaled(156)
    readonly property real glyph: 88
    readonly property real glyphNarrow: 72
    readonly property real glyphTopNarrow: 12
    readonly property real pencilBadge: 28
    readonly property real pencilRing: 3
    readonly property point pencilOverlap: Qt.point(6, 4)

    // ---- Cards

    readonly property real cardTop: 14
    readonly property real cardHeight: scaled(132)
    readonly property real accountWidth: 280
    readonly property real accountHeightNarrow: scaled(64)
    readonly property real accountChoiceNarrow: 176
    readonly property real sectionHeader: scaled(52)
    readonly property real itemHeight: scaled(36)
    readonly property real sectionFooter: scaled(44)
    readonly property real itemIconLeft: 17
    readonly property real itemTextLeft: 44
    readonly property real itemMenuRight: 12
    readonly property real itemBadgeGap: 8 ///< to the menu button
    readonly property real itemNameLeast: 96 ///< reserved for the name beside a long badge
    readonly property real filterHeight: scaled(40)
    readonly property int filteredItems: 13 ///< the least number with a filter
    readonly property real changedMenuWidth: 344
    readonly property real itemSpare: 4 * itemHeight ///< rows kept above and below the visible part

    // ---- Conversations

    readonly property real conversationHeight: scaled(56)
    readonly property real conversationActions: scaled(40) ///< more for the selected one
    readonly property real conversationSection: scaled(44)
    readonly property real conversationGlyph: 28
    readonly property real conversationTextLeft: 57
    readonly property real conversationAside: scaled(104)
    readonly property real conversationPlaceShare: 0.7 ///< of the room, at most, for the folder before the profiles
    readonly property real sidebarLink: scaled(40)

    // ---- Empty detail

    readonly property real emptyMark: 72
    readonly property real emptyRaised: 18 ///< above the middle
    readonly property real emptyFoliage: 184 ///< above the bottom
}
