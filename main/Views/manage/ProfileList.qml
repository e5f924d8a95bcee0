// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import Selvane

/// The sidebar of the management window: the profiles, and below them the settings of the application.
FocusScope {
    id: sidebar

    required property AppModel app
    required property Updates updates
    required property ConversationListModel conversations
    required property bool showsConversations
    property ProfileMenu menu: null ///< created when first opened
    property SearchCapsule capsule: null ///< created when something is first typed

    signal newProfileAsked(string source)
    signal backupAsked
    signal conversationsAsked
    signal profilePicked ///< with the pointer or a key, even the one that was selected already
    signal pickerAsked
    signal aboutAsked

    /// Opens a profile's menu at a point in its row.
    function openMenu(profileId: string, row: Item, x: real, y: real): void {
        if (!row)
            return
        if (!sidebar.menu)
            sidebar.menu = menuComponent.createObject(sidebar) as ProfileMenu
        sidebar.menu.profileId = profileId
        sidebar.menu.openAt(row, x, y, 0)
    }

    Rectangle {
        anchors.fill: parent
        color: Theme.surface

        Rectangle {
            anchors.right: parent.right
            width: Theme.hairline
            height: parent.height
            color: Theme.separator
        }
    }
    Eyebrow {
        x: Theme.manage.sidebarMargin
        y: Theme.manage.sidebarMargin
        visible: search.text === ""
        text: qsTr("Profili")
        Accessible.role: Accessible.Heading
    }
    ListView {
        id: list

        readonly property ProfileListModel profiles: ProfileListModel {
            app: sidebar.app
            search: search.text
            onSearchChanged: list.followSearch()
        }

        function go(row: int): void {
            sidebar.app.select(list.profiles.idNear(row))
            sidebar.profilePicked()
        }
        function followSearch(): void {
            if (!sidebar.capsule)
                sidebar.capsule = capsuleComponent.createObject(sidebar) as SearchCapsule
            if (search.text !== "" && list.count > 0)
                list.go(0)
        }
        function openCurrentMenu(): void {
            sidebar.openMenu(sidebar.app.selection, list.currentItem, Theme.manage.listInset, Theme.manage.profileHeight)
            sidebar.menu?.move(1)
        }

        anchors { left: parent.left; right: parent.right; rightMargin: Theme.hairline }
        y: Theme.manage.listTop
        height: (damaged.visible ? damaged.y - Theme.space12 : footer.y) - y
        bottomMargin: Theme.manage.listInset
        spacing: Theme.manage.profileGap
        clip: true
        focus: true
        activeFocusOnTab: true
        boundsBehavior: Flickable.StopAtBounds
        reuseItems: true
        highlightMoveDuration: 0
        keyNavigationEnabled: false
        model: profiles
        currentIndex: profiles.count > 0 ? profiles.indexOf(sidebar.app.selection) : -1

        Accessible.role: Accessible.List
        Accessible.name: qsTr("Profili")
        Accessible.focusable: true

        Keys.onUpPressed: go(currentIndex - 1)
        Keys.onDownPressed: go(currentIndex + 1)
        Keys.onMenuPressed: openCurrentMenu()
        Keys.onPressed: event => {
            const page = Math.max(1, Math.floor(list.height / (Theme.manage.profileHeight + list.spacing)) - 1)
            event.accepted = true
            if (event.key === Qt.Key_Home)
                go(0)
            else if (event.key === Qt.Key_End)
                go(count - 1)
            else if (event.key === Qt.Key_PageUp)
                go(currentIndex - page)
            else if (event.key === Qt.Key_PageDown)
                go(currentIndex + page)
            else if (event.key === Qt.Key_F10 && event.modifiers === Qt.ShiftModifier)
                openCurrentMenu()
            else
                event.accepted = search.take(event.key, event.modifiers, event.text)
        }

        delegate: ProfileRow {
            id: row

            required property string profileId

            // From Qt 6.8 on, a list also decides where its items lie across it.
            transform: Translate { x: Theme.manage.listInset }
            width: ListView.view.width - 2 * Theme.manage.listInset
            isSelected: profileId === sidebar.app.selection && !sidebar.showsConversations
            isRinged: ListView.isCurrentItem && list.activeFocus && Theme.showsFocus
            onPressed: {
                list.forceActiveFocus(Qt.MouseFocusReason)
                sidebar.app.select(row.profileId)
                sidebar.profilePicked()
            }
            onMenuAsked: (x, y) => sidebar.openMenu(row.profileId, row, x, y)
        }
    }
    ListFade {
        list: list
    }
    SearchText {
        id: search

        beginsWithDigits: true
    }
    ThinScrollBar {
        flickable: list
        inset: Theme.space2
    }
    DamagedProfiles {
        id: damaged

        anchors { left: parent.left; right: parent.right; bottom: footer.top; margins: Theme.manage.sidebarMargin }
        height: Math.min(contentHeight, Theme.manage.damagedHeight)
        app: sidebar.app
        isNarrow: true
    }
    SidebarFooter {
        id: footer

        anchors { left: parent.left; right: parent.right; bottom: parent.bottom; rightMargin: Theme.hairline }
        app: sidebar.app
        updates: sidebar.updates
        conversations: sidebar.conversations
        showsConversations: sidebar.showsConversations
        onConversationsAsked: sidebar.conversationsAsked()
        onNewProfileAsked: sidebar.newProfileAsked("")
        onBackupAsked: sidebar.backupAsked()
        onPickerAsked: sidebar.pickerAsked()
        onAboutAsked: sidebar.aboutAsked()
    }
    Component {
        id: capsuleComponent

        SearchCapsule {
            id: shown

            x: Theme.manage.listInset
            y: Theme.manage.sidebarMargin + Math.round((Theme.type.overline.lineHeight - height) / 2)
            width: sidebar.width - 2 * x
            visible: search.text !== ""
            text: search.text
            count: qsTr("%1 di %2").arg(list.count).arg(list.profiles.total)
            onCleared: search.clear()
            onCountChanged: {
                if (shown.visible)
                    Announcer.announce(shown, list.profiles.countText)
            }
        }
    }
    Component {
        id: menuComponent

        ProfileMenu {
            app: sidebar.app
            onLaunched: profileId => sidebar.app.launch(profileId)
            onRevealed: profileId => sidebar.app.revealProfile(profileId)
            onNewProfileAsked: source => sidebar.newProfileAsked(source)
        }
    }
}
