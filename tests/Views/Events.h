// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QJSValue>
#include <QQuickItem>

namespace selvane::test {

/// For the tests of views: waits by handling events, without sleeping in between.
class Events : public QObject {
    Q_OBJECT

public:
    /// Handles events until the function returns true. Whether it did within 5 seconds.
    Q_INVOKABLE static bool handleUntil(const QJSValue& holds);
    /// Handles events until the item's window has shown another frame. Whether it did within 5 seconds.
    Q_INVOKABLE static bool handleFrame(QQuickItem* item);
};

} // namespace selvane::test
