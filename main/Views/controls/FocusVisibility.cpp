// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "Views/controls/FocusVisibility.h"

#include <QEvent>
#include <QGuiApplication>

namespace selvane {

FocusVisibility::FocusVisibility(QObject* parent) : QObject(parent) {
    qGuiApp->installEventFilter(this);
}

bool FocusVisibility::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::KeyPress)
        setVisible(true);
    else if (event->type() == QEvent::MouseButtonPress || event->type() == QEvent::TouchBegin)
        setVisible(false);
    return QObject::eventFilter(watched, event);
}

void FocusVisibility::setVisible(bool isVisible) {
    if (m_isVisible == isVisible)
        return;
    m_isVisible = isVisible;
    emit isVisibleChanged();
}

} // namespace selvane
