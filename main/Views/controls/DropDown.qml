// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import Selvane

/// A choice from a list, perhaps with explanations. It shows `currentIndex` and signals a new choice.
Pressable {
    id: dropDown

    enum Size { Small, Medium, Large }

    property list<string> labels
    property list<string> explanations
    required property int currentIndex
    property int size: DropDown.Medium
    property bool isChip: false ///< a filter, which is narrowed unless its first label is chosen
    readonly property bool isNarrowed: isChip && currentIndex > 0
    readonly property string currentText: labels[currentIndex] ?? ""
    property DropDownMenu menu: null ///< created when first opened

    signal chosen(int index)

    function open(): void {
        if (!menu)
            menu = menuComponent.createObject(dropDown) as DropDownMenu
        menu.begin(dropDown.currentIndex, dropDown.Window.height / 2)
        menu.openAt(dropDown, 0, dropDown.height + Theme.space4, dropDown.height)
    }

    answersReturn: false
    takesFocusOnClick: true
    implicitWidth: isChip ? Math.min(Theme.controls.chipWidth, Math.ceil(shown.implicitWidth) + caret.width + Theme.space36)
                          : Theme.controls.modeWidth
    implicitHeight: size === DropDown.Small || isChip ? Theme.controls.smallHeight
                  : size === DropDown.Large ? Theme.controls.largeHeight : Theme.controls.height
    opacity: available ? 1 : Theme.disabledOpacity

    Accessible.role: Accessible.ComboBox
    Accessible.name: label !== "" ? label + ": " + currentText : currentText

    onClicked: open()
    Keys.onUpPressed: open()
    Keys.onDownPressed: open()

    Rectangle {
        anchors.fill: parent
        radius: dropDown.isChip ? height / 2 : Theme.radiusControl
        color: dropDown.isNarrowed ? Theme.coolSoft : dropDown.hovered ? Theme.raised : Theme.wellFill
        border.width: Theme.hairline
        border.color: dropDown.isNarrowed ? Theme.coolLine : Theme.controlBorder

        Behavior on color {
            ColorAnimation { duration: Theme.motion.hover }
        }
    }
    FocusRing {
        controlRadius: dropDown.isChip ? dropDown.height / 2 : Theme.radiusControl
        visible: dropDown.ringed
    }
    StyledText {
        id: shown

        anchors.verticalCenter: parent.verticalCenter
        anchors.left: parent.left
        anchors.right: caret.left
        anchors.leftMargin: (dropDown.size === DropDown.Small ? Theme.space10 : Theme.space12) + Theme.hairline
        anchors.rightMargin: Theme.space8
        look: dropDown.size === DropDown.Large ? Theme.type.field
            : dropDown.size === DropDown.Small || dropDown.isChip ? Theme.type.smallControl : Theme.type.control
        text: dropDown.currentText
        color: dropDown.isNarrowed ? Theme.linked : Theme.text
        elide: Text.ElideRight
    }
    PathIcon {
        id: caret

        anchors.verticalCenter: parent.verticalCenter
        anchors.right: parent.right
        anchors.rightMargin: (dropDown.size === DropDown.Small ? Theme.space10 : Theme.space12) + Theme.hairline
        name: "caret-down"
        size: Theme.iconCaret
        color: Theme.textSoft
    }
    Component {
        id: menuComponent

        DropDownMenu {
            labels: dropDown.labels
            explanations: dropDown.explanations
            chosenIndex: dropDown.currentIndex
            narrowest: dropDown.width
            onChosen: index => dropDown.chosen(index)
        }
    }
}
