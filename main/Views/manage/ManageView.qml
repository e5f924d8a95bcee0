// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import Selvane

/// The content of the management window: the profiles, and beside them the selected one's detail.
FocusScope {
    id: view

    required property AppModel app
    required property Updates updates

    property bool showsConversations: false
    property bool isCovered: false ///< whether something lies over the whole view
    readonly property bool hasSheet: sheets.isOpen
    readonly property bool canBeUsed: !view.isCovered && !sheets.covers
    /// Whether the application is busy or waiting for an answer.
    readonly property bool isOccupied: app.busyMessage !== "" || app.errorMessage !== "" || app.pendingLaunch !== ""
                                       || app.offerForceQuit !== ""

    signal pickerAsked

    /// Opens the sheet for a new profile with this source, or none if it is empty, unless a sheet is open.
    function newProfile(source: string): void {
        sheets.newProfile(source)
    }

    function openConversations(): void {
        view.showsConversations = true
        conversationView.begin()
    }
    function closeConversations(): void {
        view.showsConversations = false
        sidebar.forceActiveFocus(Qt.ShortcutFocusReason)
    }

    Shortcut {
        sequence: "Ctrl+F"
        enabled: view.canBeUsed && !view.hasSheet && !view.isOccupied
        onActivated: view.openConversations()
    }
    BrandBackground {}
    ProfileList {
        id: sidebar

        width: Theme.manage.sidebarWidth
        height: view.height
        focus: true
        enabled: view.canBeUsed
        app: view.app
        updates: view.updates
        conversations: conversationList
        showsConversations: view.showsConversations
        onConversationsAsked: view.openConversations()
        onProfilePicked: view.showsConversations = false
        onNewProfileAsked: source => sheets.newProfile(source)
        onBackupAsked: sheets.backUp()
        onPickerAsked: view.pickerAsked()
        onAboutAsked: sheets.tellAbout(view.updates.version)
    }
    ProfileDetail {
        anchors { left: sidebar.right; right: parent.right }
        height: view.height
        visible: profile.profileId !== "" && !view.showsConversations
        enabled: view.canBeUsed
        app: view.app
        profile: detail
        answersShortcut: visible && !view.hasSheet && !view.isOccupied
        onDuplicateAsked: sheets.newProfile(detail.profileId)
        onDeleteAsked: sheets.askToDelete(detail)
        onSessionImportAsked: sheets.importSessions(detail.profileId)
        onItemImportAsked: component => sheets.importItems(detail.profileId, component)
        onReimportAsked: component => sheets.askToReimport(detail.profileId, component)
        onRelinkAsked: component => sheets.askToRelink(detail.profileId, component)
        onCompareAsked: (component, row) => sheets.compare(detail.profileId, component, row)
    }
    EmptyDetail {
        anchors { left: sidebar.right; right: parent.right }
        height: view.height
        visible: detail.profileId === "" && !view.showsConversations
    }
    ConversationView {
        id: conversationView

        anchors { left: sidebar.right; right: parent.right }
        height: view.height
        visible: view.showsConversations
        enabled: visible && view.canBeUsed
        app: view.app
        conversations: conversationList
        answersShortcut: visible && !view.hasSheet && !view.isOccupied
        onCloseAsked: view.closeConversations()
        onContinueAsked: row => sheets.continueConversation(conversationList, row)
    }
    ManageSheets {
        id: sheets

        anchors.fill: parent
        enabled: !view.isCovered
        app: view.app
    }
    ConversationListModel {
        id: conversationList

        app: view.app
        isShown: view.showsConversations
    }
    ProfileDetailModel {
        id: detail

        app: view.app
    }
}
