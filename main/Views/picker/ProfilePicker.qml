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

    /// Whether a button shows the focus, so that the tiles mustn't. A tile keeps it while its menu is open.
    readonly property bool isFocusElsewhere: {
        const button = Window.activeFocusItem as Pressable
        return button !== null && button.ringed && !strip.menu?.isOpen
    }

    property bool isCovered: false ///< whether something lies over the whole view
    property ModalLayer sheet: null
    readonly property bool canBeUsed: !view.isCovered && !(view.sheet && view.sheet.isOpen)
    property string focusedBelow ///< the tile that had the focus when the sheet opened

    signal manageAsked

    function manage(profileId: string): void {
        view.app.select(profileId)
        view.manageAsked()
    }
    /// The sheet is a third of everything the picker can show, so it is loaded only when first needed.
    function newProfile(source: string): void {
        if (view.sheet && view.sheet.isOpen)
            return
        view.dropSheet()
        const component = Qt.createComponent("NewProfileSheet.qml")
        view.focusedBelow = view.picker.focused
        view.sheet = component.createObject(layers, {app: view.app, initialSource: source}) as ModalLayer
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

    focus: true

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
            event.accepted = view.picker.launchNumber(event.text)
    }

    BrandBackground {}
    Foliage {
        anchors.right: parent.right
        y: Theme.picker.foliageTop + view.spareAbove
        visible: !view.isCompact
    }

    BrandLockup {
        x: view.columnLeft
        y: view.places.barTop
        height: Theme.picker.bar
    }
    Row {
        anchors.right: parent.right
        anchors.rightMargin: view.columnLeft
        y: view.places.barTop + (Theme.picker.bar - height) / 2
        spacing: Theme.space8
        enabled: view.canBeUsed

        GhostButton {
            text: qsTr("Gestisci profili")
            symbol: "slider.horizontal.3"
            onClicked: view.manageAsked()
        }
        GhostButton {
            symbol: "gearshape"
            label: qsTr("Impostazioni")
            help: Theme.keyText(qsTr("Impostazioni (⌘,)"))
            onClicked: view.manageAsked()
        }
    }

    Eyebrow {
        x: view.columnLeft
        y: view.places.overline + view.spareAbove
        text: qsTr("Scegli un profilo")
    }
    PickerQuestion {
        x: view.columnLeft - Theme.picker.opticalMargin
        y: view.places.title + view.spareAbove
        isCompact: view.isCompact
    }
    StyledText {
        x: view.columnLeft
        y: view.places.subtitle + view.spareAbove
        look: Theme.type.subtitle
        text: qsTr("Ogni profilo ha il suo account, le sue skill e le sue regole.")
        color: Theme.textSoft
        Accessible.role: Accessible.StaticText
        Accessible.name: text
    }

    TileStrip {
        id: strip

        objectName: "strip"
        focus: true
        enabled: view.canBeUsed
        anchors { left: parent.left; right: parent.right }
        y: view.places.tiles + view.spareAbove - Theme.picker.stripSpare
        height: (view.isCompact ? Theme.picker.tileHeightCompact : Theme.picker.tileHeight) + 2 * Theme.picker.stripSpare
        profiles: ProfileListModel { app: view.app }
        focused: view.picker.focused
        showsFocused: !view.isFocusElsewhere
        isCompact: view.isCompact
        margin: view.columnLeft
        onLaunched: profileId => view.app.launch(profileId)
        onSettingsAsked: profileId => view.manage(profileId)
        onPointedAt: profileId => view.picker.focused = profileId
        onNewProfileAsked: source => view.newProfile(source)
    }

    DamagedProfiles {
        id: damaged

        x: view.columnLeft
        y: strip.y + strip.height - Theme.picker.stripSpare + Theme.space8
        width: view.columnWidth
        height: Theme.controls.smallHeight
        enabled: view.canBeUsed
        app: view.app
    }
    PickerHint {
        visible: !view.isCompact || !damaged.visible // a small window has no room for both
        x: view.columnLeft
        y: view.height - view.places.footer - height
    }
    Kelvo8Logo {
        size: Theme.controls.keyCapHeight
        color: Theme.textFaint
        anchors.right: parent.right
        anchors.rightMargin: view.columnLeft
        y: view.height - view.places.footer - height
        visible: !view.isCompact
    }

    Item {
        id: layers

        anchors.fill: parent
        enabled: !view.isCovered
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
