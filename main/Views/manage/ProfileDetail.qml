// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import Selvane

/// Everything to see and change in a profile, scrolling as one column under the tool bar.
FocusScope {
    id: detail

    required property AppModel app
    required property ProfileDetailModel profile
    required property bool answersShortcut

    readonly property bool isNarrow: width < Theme.manage.narrowDetail
    readonly property real columnWidth: Math.min(width - 2 * Theme.manage.detailMargin, Theme.manage.column)

    signal duplicateAsked
    signal deleteAsked
    signal sessionImportAsked
    signal itemImportAsked(string component)
    signal reimportAsked(ComponentModel component)
    signal relinkAsked(ComponentModel component)
    signal compareAsked(ComponentModel component, int row)

    Connections {
        target: detail.profile

        function onProfileIdChanged(): void {
            pane.showTop()
        }
    }
    DetailToolBar {
        id: toolBar

        width: detail.width
        isNarrow: detail.isNarrow
        deletionRefusal: detail.profile.deletionRefusal
        onCommandAsked: detail.app.copyTerminalCommand(detail.profile.profileId)
        onDuplicateAsked: detail.duplicateAsked()
        onRevealAsked: detail.app.revealProfile(detail.profile.profileId)
        onDeleteAsked: detail.deleteAsked()
    }
    ScrollPane {
        id: pane

        anchors { top: toolBar.bottom; bottom: parent.bottom }
        width: detail.width
        sideMargin: Math.round((width - detail.columnWidth) / 2)
        topMargin: Theme.space20
        bottomMargin: Theme.manage.detailMargin
        spacing: Theme.cardGap

        ProfileHeader {
            width: detail.columnWidth
            app: detail.app
            profile: detail.profile
            isNarrow: detail.isNarrow
            answersShortcut: detail.answersShortcut
            onLaunched: detail.app.launch(detail.profile.profileId)
            onSynced: detail.app.sync(detail.profile.profileId)
        }
        Item {
            readonly property real sideBySide: Math.max(account.implicitHeight, sessions.implicitHeight)

            width: detail.columnWidth
            height: detail.isNarrow ? sessions.y + sessions.height : sideBySide

            AccountSection {
                id: account

                width: detail.isNarrow ? parent.width : Theme.manage.accountWidth
                height: detail.isNarrow ? implicitHeight : parent.sideBySide
                profile: detail.profile
                isNarrow: detail.isNarrow
            }
            SessionsSection {
                id: sessions

                x: detail.isNarrow ? 0 : account.width + Theme.cardGap
                y: detail.isNarrow ? account.height + Theme.cardGap : 0
                width: parent.width - x
                height: detail.isNarrow ? implicitHeight : parent.sideBySide
                profile: detail.profile
                isNarrow: detail.isNarrow
                onImportAsked: detail.sessionImportAsked()
            }
        }
        IsolationSection {
            width: detail.columnWidth
            visible: !detail.profile.isBuiltIn
            profile: detail.profile
        }
        Repeater {
            model: detail.profile.collections

            delegate: CollectionSection {
                id: section

                required property ComponentModel modelData

                width: detail.columnWidth
                component: modelData
                menu: itemMenu
                changedMenu: driftMenu
                visibleTop: pane.visibleTop - y
                visibleHeight: pane.visibleHeight
                onRowReached: row => pane.reveal(row)
                onFoldedFromBelow: pane.scrollTo(section)
                onImportAsked: detail.itemImportAsked(section.component.component)
                onRelinkAsked: detail.relinkAsked(section.component)
            }
        }
        Repeater {
            model: detail.profile.files

            delegate: FileSection {
                id: file

                required property ComponentModel modelData

                width: detail.columnWidth
                component: modelData
                onReimportAsked: detail.reimportAsked(file.component)
                onRelinkAsked: detail.relinkAsked(file.component)
                onCompareAsked: detail.compareAsked(file.component, -1)
                onMenuAsked: opener => driftMenu.openForFile(file.component, opener)
            }
        }
    }
    ItemMenu {
        id: itemMenu
    }
    ChangedMenu {
        id: driftMenu

        onCompareAsked: (component, row) => detail.compareAsked(component, row)
    }
}
