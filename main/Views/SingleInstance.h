// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QLocalServer>
#include <QObject>

namespace selvane {

/// One windowed Selvane a user: a second start hands over to the first.
class SingleInstance : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;

    /// Whether this process is the one. If not, the other has been told.
    bool claim();

signals:
    /// Somebody has started Selvane again.
    void startedAgain();

private:
    QLocalServer m_server;
};

} // namespace selvane
