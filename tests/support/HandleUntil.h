// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QTimer>

namespace selvane::test {

/// Handles events, and sleeps while there are none, until the condition holds. Whether it did in time.
template <typename Condition>
bool handleUntil(const Condition& holds, QDeadlineTimer limit = QDeadlineTimer(20'000)) {
    QTimer beat; // some of what is waited for comes without an event
    beat.start(5);
    while (!holds()) {
        if (limit.hasExpired())
            return false;
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    return true;
}

} // namespace selvane::test
