// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import Selvane

/// Every conversation of every profile, and what can be done with one.
FocusScope {
    id: view

    required property AppModel app
    required property ConversationListModel conversations
    property bool answersShortcut: false

    signal closeAsked
    signal continueAsked(int row)

    function begin(): void {
        field.forceActiveFocus(Qt.ShortcutFocusReason)
    }
    function go(row: int): void {
        list.currentIndex = Math.max(0, Math.min(row, list.count - 1))
        const current = list.currentItem as ConversationRow
        if (current && !list.activeFocus)
            Announcer.announce(current, current.description) // the focus stays in the field
    }
    function goOn(): void {
        if (list.currentItem && !(list.currentItem as ConversationRow).isLost)
            view.continueAsked(list.currentIndex)
    }

    Keys.onEscapePressed: {
        if (view.conversations.search !== "")
            view.conversations.search = ""
        else
            view.closeAsked()
    }

    Shortcut {
        sequence: "Ctrl+Shift+C"
        enabled: view.answersShortcut && list.currentIndex >= 0
        onActivated: view.conversations.copyCommand(list.currentIndex)
    }
    ConversationToolBar {
        id: bar

        width: parent.width
        indent: column.x
        conversations: view.conversations
    }
    Column {
        id: column

        x: Math.round((view.width - width) / 2)
        y: bar.height + Theme.space16
        width: Math.min(view.width - 2 * Theme.manage.detailMargin, Theme.manage.column)
        spacing: Theme.space12

        TextInputField {
            id: field

            width: parent.width
            focus: true
            label: qsTr("Cerca nelle conversazioni")
            showsLabel: false
            icon: "magnifying-glass"
            placeholder: qsTr("Titolo, prime parole o cartella")
            text: view.conversations.search
            onEdited: text => view.conversations.search = text
            onSubmitted: view.goOn()
            Keys.onDownPressed: view.go(list.currentIndex + 1)
            Keys.onUpPressed: view.go(list.currentIndex - 1)
        }
        ConversationFilters {
            width: parent.width
            conversations: view.conversations
        }
    }
    ListView {
        id: list

        objectName: "conversations"

        property string chosen ///< the key of the selected one, to find it again in other rows

        x: column.x
        y: column.y + column.height
        width: view.width - x // with the scroll bar in the margin
        height: view.height - y
        bottomMargin: Theme.space24
        clip: true
        activeFocusOnTab: true
        boundsBehavior: Flickable.StopAtBounds
        highlightMoveDuration: 0
        keyNavigationEnabled: false
        reuseItems: true
        currentIndex: -1
        model: view.conversations

        Accessible.role: Accessible.List
        Accessible.name: qsTr("Conversazioni")
        Accessible.focusable: true

        onCurrentIndexChanged: {
            if (currentIndex >= 0)
                chosen = view.conversations.keyOf(currentIndex)
        }
        onActiveFocusChanged: {
            if (activeFocus && currentIndex < 0)
                view.go(0)
            if (!activeFocus && currentItem)
                currentItem.focus = true // Tab comes back to it, not to its last button
        }
        Keys.onUpPressed: view.go(currentIndex - 1)
        Keys.onDownPressed: view.go(currentIndex + 1)
        Keys.onReturnPressed: view.goOn()
        Keys.onEnterPressed: view.goOn()
        Keys.onPressed: event => {
            const page = Math.max(1, Math.floor(height / Theme.manage.conversationHeight) - 1)
            const steps = {
                [Qt.Key_Home]: -count, [Qt.Key_End]: count, [Qt.Key_PageUp]: -page, [Qt.Key_PageDown]: page
            }
            event.accepted = steps[event.key] !== undefined
            if (event.accepted)
                view.go(currentIndex + steps[event.key])
        }

        delegate: ConversationRow {
            id: row

            required property int index

            ListView.onPooled: visible = false // also to screen readers
            ListView.onReused: visible = true

            width: column.width
            isSelected: ListView.isCurrentItem
            isRinged: ListView.isCurrentItem && list.activeFocus && Theme.showsFocus
            onPressed: {
                list.forceActiveFocus(Qt.MouseFocusReason)
                view.go(row.index)
            }
            onContinueAsked: view.goOn() // it is the selected one
            onCommandAsked: view.conversations.copyCommand(row.index)
            onShowAsked: view.conversations.show(row.index)
        }

        Connections {
            target: view.conversations

            function onModelReset(): void {
                list.currentIndex = view.conversations.rowOf(list.chosen)
            }
        }
    }
    ThinScrollBar {
        flickable: list
        inset: Theme.space2
    }
    StyledText {
        readonly property string searched: view.conversations.search.trim()

        anchors.horizontalCenter: column.horizontalCenter
        y: list.y + Theme.manage.conversationSection
        visible: list.count === 0 && view.conversations.tally !== "" && !view.conversations.isSearching
        width: column.width
        look: Theme.type.subtitle
        text: view.conversations.total === 0
              ? qsTr("Ancora nessuna conversazione: qui compaiono quelle del tab Code e del terminale, di ogni profilo")
              : searched === "" ? qsTr("Nessuna conversazione con questi filtri")
                                : qsTr("Nessuna conversazione con «%1»").arg(searched)
        horizontalAlignment: Text.AlignHCenter
        wrapMode: Text.Wrap
        color: Theme.textSoft
        Accessible.role: Accessible.StaticText
        Accessible.name: text
    }
}
