// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import Selvane

/// One large tile per profile: choosing one launches Claude Desktop with it.
FocusScope {
    id: view

    required property AppModel app
    required property PickerModel picker

    readonly property bool isCompact: width < Theme.pickerFullWidth || height < Theme.pickerFullHeight
    readonly property var places: isCompact ? Theme.pickerCompact : Theme.pickerFull
    readonly property real columnWidth: Math.min(width - 2 * places.margin, Theme.pickerColumn)
    readonly property real columnLeft: (width - columnWidth) / 2
    /// Of the height that is left over, this part lies above the heading and the tiles.
    readonly property real spareAbove: Math.max(0, height - places.height) * Theme.pickerSpareAbove

    signal manageAsked(string profileId)
    signal newProfileAsked(string source)

    focus: true

    Keys.onLeftPressed: event => event.accepted = view.picker.move(-1)
    Keys.onRightPressed: event => event.accepted = view.picker.move(1)
    Keys.onReturnPressed: event => event.accepted = view.picker.launchFocused()
    Keys.onEnterPressed: event => event.accepted = view.picker.launchFocused()
    Keys.onPressed: event => event.accepted = view.picker.launchNumber(event.text)

    BrandBackground {}
    Foliage {
        anchors.right: parent.right
        y: Theme.foliageTop + view.spareAbove
        visible: !view.isCompact
    }

    BrandLockup {
        x: view.columnLeft
        y: view.places.bar
        height: Theme.pickerBar
    }
    Row {
        anchors.right: parent.right
        anchors.rightMargin: view.columnLeft
        y: view.places.bar + (Theme.pickerBar - height) / 2
        spacing: Theme.space8

        GhostButton {
            text: qsTr("Gestisci profili")
            symbol: "slider.horizontal.3"
            onClicked: view.manageAsked("")
        }
        GhostButton {
            symbol: "gearshape"
            label: qsTr("Impostazioni")
            help: Theme.keyText(qsTr("Impostazioni (⌘,)"))
            onClicked: view.manageAsked("")
        }
    }

    Eyebrow {
        x: view.columnLeft
        y: view.places.overline + view.spareAbove
        text: qsTr("Scegli un profilo")
    }
    Row {
        x: view.columnLeft - Theme.opticalMargin
        y: view.places.title + view.spareAbove

        Accessible.role: Accessible.Heading
        Accessible.name: qsTr("Chi usa Claude?")

        StyledText {
            id: question

            look: view.isCompact ? Theme.titleCompact : Theme.title
            text: qsTr("Chi usa ")
            Accessible.ignored: true
        }
        StyledText {
            anchors.baseline: question.baseline
            look: view.isCompact ? Theme.titleSerifCompact : Theme.titleSerif
            text: qsTr("Claude?")
            color: Theme.lit
            Accessible.ignored: true
        }
    }
    StyledText {
        x: view.columnLeft
        y: view.places.subtitle + view.spareAbove
        look: Theme.subtitle
        text: qsTr("Ogni profilo ha il suo account, le sue skill e le sue regole.")
        color: Theme.textSoft
        Accessible.role: Accessible.StaticText
        Accessible.name: text
    }

    TileStrip {
        anchors { left: parent.left; right: parent.right }
        y: view.places.tiles + view.spareAbove - Theme.stripSpare
        height: (view.isCompact ? Theme.tileHeightCompact : Theme.tileHeight) + 2 * Theme.stripSpare
        profiles: ProfileListModel { app: view.app }
        focused: view.picker.focused
        isCompact: view.isCompact
        margin: view.columnLeft
        onLaunched: profileId => view.app.launch(profileId)
        onSettingsAsked: profileId => view.manageAsked(profileId)
        onHovered: profileId => view.picker.focused = profileId
        onNewProfileAsked: view.newProfileAsked(view.picker.focused)
    }

    PickerHint {
        x: view.columnLeft
        y: view.height - view.places.footer - height
    }
    Kelvo8Logo {
        size: Theme.keyCapHeight
        color: Theme.textFaint
        anchors.right: parent.right
        anchors.rightMargin: view.columnLeft
        y: view.height - view.places.footer - height
        visible: !view.isCompact
    }
}
