// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "Views/Events.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QQuickWindow>
#include <QTimer>

namespace selvane::test {
namespace {

template <typename Condition>
bool handleUntil(const Condition& holds) {
    constexpr int kMilliseconds = 5000;
    const QDeadlineTimer deadline(kMilliseconds);
    QTimer beat; // some of what is waited for comes without an event
    beat.start(20);
    while (!holds()) {
        if (deadline.hasExpired())
            return false;
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    return true;
}

} // namespace

bool Events::handleUntil(const QJSValue& holds) {
    return test::handleUntil([&] {
        const QJSValue result = holds.call();
        return !result.isError() && result.toBool();
    });
}

bool Events::handleFrame(QQuickItem* item) {
    QQuickWindow* const window = item->window();
    bool isShown = false;
    const QMetaObject::Connection connection =
        QObject::connect(window, &QQuickWindow::frameSwapped, window, [&] { isShown = true; });
    window->update();
    test::handleUntil([&] { return isShown; });
    QObject::disconnect(connection);
    return isShown;
}

} // namespace selvane::test
