// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QQmlEngine>
#include <QQuickItem>

namespace selvane {

/// Has screen readers read out what has changed without the focus moving.
class Announcer : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

public:
    using QObject::QObject;

    /// `about` is the item that shows the text. Before Qt 6.8, screen readers are only told that it is an
    /// alert.
    Q_INVOKABLE static void announce(QQuickItem* about, const QString& text);
};

} // namespace selvane
