// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "Views/Events.h"

#include <QQuickWindow>

#include "support/HandleUntil.h"

namespace selvane::test {
namespace {

template <typename Condition>
bool handleAllUntil(const Condition& holds) {
    constexpr int kMilliseconds = 5000;
    const auto holdsAfterDeletions = [&] {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        return holds();
    };
    return handleUntil(holdsAfterDeletions, QDeadlineTimer(kMilliseconds));
}

} // namespace

bool Events::handleUntil(const QJSValue& holds) {
    return handleAllUntil([&] {
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
    handleAllUntil([&] { return isShown; });
    QObject::disconnect(connection);
    return isShown;
}

} // namespace selvane::test
