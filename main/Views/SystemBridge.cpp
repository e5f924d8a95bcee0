// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "Views/SystemBridge.h"

#include <QClipboard>
#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDesktopServices>
#include <QGuiApplication>
#include <QStandardPaths>

#include <utility>

namespace selvane {
namespace {

namespace fs = std::filesystem;

constexpr int kLookMilliseconds = 2000;

QUrl fileUrl(const fs::path& path) {
    return QUrl::fromLocalFile(
        QString::fromLocal8Bit(path.native().data(), static_cast<qsizetype>(path.native().size())));
}

} // namespace

SystemBridge::SystemBridge(const ClaudeApp& claude) : m_claude(claude) {
    m_timer.setInterval(kLookMilliseconds);
    connect(&m_timer, &QTimer::timeout, this, &SystemBridge::look);
}

void SystemBridge::endApplication() {
    QMetaObject::invokeMethod(qApp, &QCoreApplication::quit, Qt::QueuedConnection);
}

void SystemBridge::copyToClipboard(const QString& text) {
    QGuiApplication::clipboard()->setText(text);
}

void SystemBridge::reveal(const fs::path& item) {
    auto call =
        QDBusMessage::createMethodCall("org.freedesktop.FileManager1", "/org/freedesktop/FileManager1",
                                       "org.freedesktop.FileManager1", "ShowItems");
    call << QStringList{fileUrl(item).toString(QUrl::FullyEncoded)} << QString();
    const fs::path folder = item.parent_path();
    // Where no file manager answers to that, at least the folder is opened.
    const auto reply = QDBusConnection::sessionBus().call(call, QDBus::Block, 1000);
    if (reply.type() == QDBusMessage::ErrorMessage)
        QDesktopServices::openUrl(fileUrl(folder));
}

void SystemBridge::open(const fs::path& file) {
    QDesktopServices::openUrl(fileUrl(file));
}

void SystemBridge::askForArchive(const QString& proposedName,
                                 std::function<void(std::optional<fs::path>)> done) {
    m_archiveDone = std::move(done);
    const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    emit archiveWanted(QUrl::fromLocalFile(documents), proposedName);
}

void SystemBridge::answerArchive(const QUrl& place) {
    const auto done = std::exchange(m_archiveDone, nullptr);
    if (!done)
        return;
    const QString file = place.toLocalFile();
    done(file.isEmpty() ? std::nullopt : std::optional(fs::path(file.toLocal8Bit().toStdString())));
}

void SystemBridge::setWatching(bool watches) {
    if (!watches) {
        m_timer.stop();
        return;
    }
    if (!m_timer.isActive()) {
        look();
        m_timer.start();
    }
}

void SystemBridge::look() {
    std::vector<RunningApplication> copies = m_claude.running();
    if (copies == m_copies)
        return;
    m_copies = std::move(copies);
    emit claudeCopiesChanged();
}

} // namespace selvane
