// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import Selvane

/// A sheet: a title, a body that scrolls if the window is too low, and two buttons.
ModalLayer {
    id: sheet

    default property alias body: pane.content
    required property string confirmText
    property string cancelText: qsTr("Annulla") ///< empty: no cancel button
    property bool destructive: false
    property string extraText ///< of a third button; empty for none
    property bool extraEnabled: true
    property string remark ///< beside the buttons
    property alias spacing: pane.spacing

    readonly property real fixedHeight: header.height + footer.height
    readonly property real highest: height - 2 * Theme.sheets.margin
    /// How tall the body can be before it scrolls.
    readonly property real bodyRoom: highest - fixedHeight - pane.bottomMargin

    signal extraAsked

    plateWidth: Theme.sheets.newProfileWidth
    plateHeight: Math.min(highest, fixedHeight + pane.implicitHeight)

    Item {
        id: header

        width: parent.width
        height: Theme.space20 + heading.height + Theme.space12

        StyledText {
            id: heading

            x: Theme.sheets.margin
            y: Theme.space20
            width: parent.width - 2 * Theme.sheets.margin
            look: Theme.type.sheetTitle
            text: sheet.title
            elide: Text.ElideRight
            Accessible.role: Accessible.Heading
            Accessible.name: text
        }
        Rectangle {
            anchors.bottom: parent.bottom
            x: Theme.hairline
            width: parent.width - 2 * Theme.hairline
            height: Theme.hairline
            visible: pane.isScrolled
            color: Theme.separator
        }
    }
    ScrollPane {
        id: pane

        anchors.top: header.bottom
        anchors.bottom: footer.top
        width: parent.width
        sideMargin: Theme.sheets.margin
        bottomMargin: Theme.space20
        spacing: Theme.space16
    }
    Item {
        id: footer

        anchors.bottom: parent.bottom
        width: parent.width
        height: Theme.controls.largeHeight + 2 * Theme.space16 + Theme.hairline

        Rectangle {
            x: Theme.hairline
            width: parent.width - 2 * Theme.hairline
            height: Theme.hairline
            color: Theme.separator
        }
        StyledText {
            anchors { left: parent.left; leftMargin: Theme.sheets.margin; verticalCenter: buttons.verticalCenter }
            visible: sheet.remark !== ""
            look: Theme.type.small
            text: sheet.remark
            color: Theme.textFaint
            Accessible.role: Accessible.StaticText
            Accessible.name: text
        }
        DialogButtons {
            id: buttons

            anchors.right: parent.right
            anchors.bottom: parent.bottom
            anchors.rightMargin: Theme.sheets.margin
            anchors.bottomMargin: Theme.space16
            confirmText: sheet.confirmText
            cancelText: sheet.cancelText
            confirmEnabled: sheet.confirmEnabled
            extraText: sheet.extraText
            extraEnabled: sheet.extraEnabled
            onExtraAsked: sheet.extraAsked()
            destructive: sheet.destructive
            onConfirmed: sheet.confirm()
            onCancelled: sheet.cancel()
        }
    }
}
