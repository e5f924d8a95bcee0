// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import Selvane

/// Fades out the row that is cut off at the top of a scrolled list in the sidebar: the last pixels of its text
/// would look like stray marks.
Rectangle {
    id: fade

    required property ListView list

    anchors { left: fade.list.left; right: fade.list.right; top: fade.list.top }
    height: Theme.manage.listFade
    visible: fade.list.contentY > fade.list.originY
    gradient: Gradient {
        GradientStop { position: 0; color: Theme.surface }
        GradientStop { position: 0.4; color: Theme.surface }
        GradientStop { position: 1; color: Qt.alpha(Theme.surface, 0) }
    }

    Accessible.ignored: true
}
