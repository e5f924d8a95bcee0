// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QLocalServer>
#include <QObject>

namespace selvane {

/// Only one windowed Selvane per user: a second start hands over to the first.
class SingleInstance : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;

    /// Whether this process is the first. If not, it has passed `request` to the other one, with `token`,
    /// which lets a window come to the front and may be empty.
    bool claim(const QByteArray& request, const QByteArray& token);

signals:
    /// The user has started Selvane again, with this request and token.
    void startedAgain(const QByteArray& request, const QByteArray& token);

private:
    void hear(QLocalSocket* caller);

    QLocalServer m_server;
};

} // namespace selvane
