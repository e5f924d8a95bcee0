// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "Views/shell/SingleInstance.h"

#include <QFile>
#include <QLocalSocket>

#include "platform/files/RuntimeFolder.h"

namespace selvane {
namespace {

constexpr int kAnswerMilliseconds = 1000;
constexpr qint64 kLongestRequest = 20'000; // a link of at most 16 KiB, and a token

QString socketName() {
    const auto folder = runtimeFolder(currentEnvironment());
    return folder ? QFile::decodeName((*folder / "windows").c_str()) : QString();
}

} // namespace

void SingleInstance::hear(QLocalSocket* caller) {
    connect(caller, &QLocalSocket::disconnected, this, [this, caller] {
        const QByteArrayList lines = caller->read(kLongestRequest).split('\n');
        emit startedAgain(lines.first(), lines.value(1));
        caller->deleteLater();
    });
}

bool SingleInstance::claim(const QByteArray& request, const QByteArray& token) {
    const QString name = socketName();
    if (name.isEmpty())
        return true;
    QLocalSocket other;
    other.connectToServer(name);
    if (other.waitForConnected(kAnswerMilliseconds)) {
        other.write(request + '\n' + token);
        while (other.bytesToWrite() > 0 && other.waitForBytesWritten(kAnswerMilliseconds)) {
        }
        return false;
    }
    QLocalServer::removeServer(name); // left behind by a Selvane that was killed
    connect(&m_server, &QLocalServer::newConnection, this, [this] {
        while (QLocalSocket* caller = m_server.nextPendingConnection())
            hear(caller);
    });
    m_server.listen(name); // nobody else gets into its folder
    return true;
}

} // namespace selvane
