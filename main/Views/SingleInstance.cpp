// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "Views/SingleInstance.h"

#include <QLocalSocket>
#include <QStandardPaths>

namespace selvane {
namespace {

constexpr int kAnswerMilliseconds = 1000;

/// In the user's own runtime folder, which no other user can enter.
QString socketName() {
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
    return folder.isEmpty() ? QString() : folder + "/selvane";
}

} // namespace

bool SingleInstance::claim() {
    const QString name = socketName();
    if (name.isEmpty())
        return true;
    QLocalSocket other;
    other.connectToServer(name);
    if (other.waitForConnected(kAnswerMilliseconds))
        return false;
    QLocalServer::removeServer(name); // left behind by one that was killed
    connect(&m_server, &QLocalServer::newConnection, this, [this] {
        while (QLocalSocket* caller = m_server.nextPendingConnection())
            caller->deleteLater();
        emit startedAgain();
    });
    m_server.setSocketOptions(QLocalServer::UserAccessOption);
    m_server.listen(name);
    return true;
}

} // namespace selvane
