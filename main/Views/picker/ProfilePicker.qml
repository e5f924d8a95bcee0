// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import Selvane

/// One large tile per profile. Choosing one launches Claude Desktop with it.
FocusScope {
    id: view

    required property AppModel app
    required property PickerModel picker

    readonly property bool isCompact: width < Theme.picker.fullWidth || height < Theme.picker.fullHeight
    readonly property PickerPlaces places: isCompact ? Theme.picker.compact : Theme.picker.full
    readonly property real columnWidth: Math.min(width - 2 * places.margin, Theme.picker.column)
    readonly property real columnLeft: (width - columnWidth) / 2
    /// How much of the unused height goes above the heading and the tiles.
    readonly property real spareAbove: Math.max(0, height - places.height) * Theme.picker.spareAbove

    /// Whether a button here shows the focus, so that the tiles mustn't. A tile keeps it while its menu is open.
    readonly property bool isFocusElsewhere: {
        const button = Window.activeFocusItem as Pressable
        return button !== null && button.ringed && view.canBeUsed && !strip.menu?.isOpen
    }

    property bool isCovered: false ///< whether something lies over the whole view
    property var sheet: null ///< a NewProfileSheet, a third of all there is: it is loaded only when first needed
    property Item finder: null ///< a PickerSearch, which isn't even loaded before something is typed
    readonly property bool canBeUsed: !view.isCovered && !(view.sheet && view.sheet.isOpen)
    property string focusedBelow ///< the tile that had the focus when the sheet opened

    signal manageAsked

    function manage(profileId: string): void {
        view.app.select(profileId)
        view.manageAsked()
    }
    function newProfile(source: string): void {
        if (view.sheet && view.sheet.isOpen)
            return
        view.dropSheet()
        const component = Qt.createComponent("NewProfileSheet.qml")
        view.focusedBelow = view.picker.focused
        view.sheet = component.createObject(layers, {app: view.app, initialSource: source})
    }
    function dropSheet(): void {
        view.sheet?.destroy()
        view.sheet = null
    }

    function move(step: int): bool {
        const moved = view.picker.move(step)
        strip.takeFocus()
        return moved
    }
    function moveTo(row: int): void {
        view.picker.focused = strip.profiles.idNear(row)
        strip.takeFocus()
    }
    function makeFinder(): void {
        if (!view.finder)
            view.finder = Qt.createComponent("PickerSearch.qml").createObject(layers, {
                search: search, profiles: strip.profiles, indent: Qt.binding(() => view.columnLeft),
                capsuleTop: Qt.binding(() => view.places.subtitle + view.spareAbove),
                tilesTop: Qt.binding(() => strip.y + Theme.picker.stripSpare)
            }) as Item
    }
    function followSearch(): void {
        view.makeFinder()
        view.picker.followSearch(search.text !== "")
        strip.takeFocus()
    }

    focus: true

    Component.onCompleted: view.picker.rows = strip.profiles
    Keys.onLeftPressed: event => event.accepted = view.move(-1)
    Keys.onRightPressed: event => event.accepted = view.move(1)
    Keys.onReturnPressed: event => event.accepted = view.picker.launchFocused()
    Keys.onEnterPressed: event => event.accepted = view.picker.launchFocused()
    Keys.onMenuPressed: strip.openMenu()
    Keys.onPressed: event => {
        event.accepted = true
        if (event.key === Qt.Key_F10 && event.modifiers === Qt.ShiftModifier)
            strip.openMenu()
        else if (event.key === Qt.Key_Home)
            view.moveTo(0)
        else if (event.key === Qt.Key_End)
            view.moveTo(strip.count - 1)
        else
            event.accepted = view.canBeUsed && search.take(event.key, event.modifiers, event.text)
                             || view.picker.launchNumber(event.text)
    }

    SearchText {
        id: search
    }

    BrandBackground {}
    Foliage {
        anchors.right: parent.right
        y: Theme.picker.foliageTop + view.spareAbove
        visible: !view.isCompact
    }

    PickerBar {
        x: view.columnLeft
        y: view.places.barTop
        width: view.columnWidth
        height: Theme.picker.bar
        enabled: view.canBeUsed
        offersNewProfile: strip.isLong
        onManageAsked: view.manageAsked()
        onNewProfileAsked: view.newProfile(view.picker.focused)
    }
    PickerHeading {
        y: view.spareAbove
        places: view.places
        indent: view.columnLeft
        isCompact: view.isCompact
        isSearching: search.text !== ""
    }

    TileStrip {
        id: strip

        objectName: "strip"
        focus: true
        enabled: view.canBeUsed
        anchors { left: parent.left; right: parent.right }
        y: view.places.tiles + view.spareAbove - Theme.picker.stripSpare
        height: (view.isCompact ? Theme.picker.tileHeightCompact : Theme.picker.tileHeight) + 2 * Theme.picker.stripSpare
        profiles: ProfileListModel {
            app: view.app
            search: search.text
            recentFirst: view.app.recentFirst
            onSearchChanged: view.followSearch()
        }
        focused: view.picker.focused
        showsFocused: !view.isFocusElsewhere
        isCompact: view.isCompact
        isSearched: search.text !== ""
        margin: view.columnLeft
        onLaunched: profileId => view.app.launch(profileId)
        onSettingsAsked: profileId => view.manage(profileId)
        onPointedAt: profileId => view.picker.focused = profileId
        onNewProfileAsked: source => view.newProfile(source)
    }

    Loader {
        id: damaged

        x: view.columnLeft
        y: strip.y + strip.height - Theme.picker.stripSpare + Theme.space8
        width: view.columnWidth
        height: Theme.controls.smallHeight
        enabled: view.canBeUsed
        active: view.app.damaged.length > 0
        Component.onCompleted: setSource("DamagedProfiles.qml", {app: view.app})
    }
    PickerHint {
        visible: !view.isCompact || !damaged.active // a small window has no room for both
        isSearching: search.text !== ""
        x: view.columnLeft
        y: view.height - view.places.footer - height
    }
    Kelvo8Logo {
        size: Theme.controls.keyCapHeight
        color: Theme.textFaint
        anchors { right: parent.right; rightMargin: view.columnLeft }
        y: view.height - view.places.footer - height
        visible: !view.isCompact
    }

    Item {
        id: layers

        anchors.fill: parent
        enabled: !view.isCovered
    }
    Connections {
        target: view.picker

        function onAllAsked(): void {
            search.clear()
        }
    }
    Connections {
        target: view.sheet

        function onClosed(): void {
            view.dropSheet()
            if (view.picker.focused !== view.focusedBelow) // it is the new one now
                strip.takeFocus()
        }
    }
}
