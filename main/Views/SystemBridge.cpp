// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "Views/SystemBridge.h"

#include <QClipboard>
#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDesktopServices>
#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QStandardPaths>

#include <utility>

namespace selvane {
namespace {

namespace fs = std::filesystem;

constexpr int kFirstLookMilliseconds = 200; // once the window is there
constexpr int kLookMilliseconds = 2000;

QUrl fileUrl(const fs::path& path) {
    return QUrl::fromLocalFile(
        QString::fromLocal8Bit(path.native().data(), static_cast<qsizetype>(path.native().size())));
}

fs::path pathOf(const QString& file) {
    return QFile::encodeName(file).toStdString();
}

} // namespace

SystemBridge::SystemBridge(const ClaudeApp& claude) : m_claude(claude) {
    connect(&m_saveDialog, &PortalSaveDialog::chosen, this,
            [this](const QUrl& file) { finishArchive(pathOf(file.toLocalFile())); });
    connect(&m_saveDialog, &PortalSaveDialog::cancelled, this, [this] { finishArchive(std::nullopt); });
    connect(&m_saveDialog, &PortalSaveDialog::unavailable, this,
            [this] { emit archiveWanted(m_proposedArchive); });
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
    QDBusConnection bus = QDBusConnection::sessionBus();
    const auto openFolder = [folder = item.parent_path()] { QDesktopServices::openUrl(fileUrl(folder)); };
    if (!bus.isConnected()) {
        openFolder();
        return;
    }
    auto call =
        QDBusMessage::createMethodCall("org.freedesktop.FileManager1", "/org/freedesktop/FileManager1",
                                       "org.freedesktop.FileManager1", "ShowItems");
    call << QStringList{fileUrl(item).toString(QUrl::FullyEncoded)} << QString();
    auto* watcher = new QDBusPendingCallWatcher(bus.asyncCall(call), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [watcher, openFolder] {
        // Where no file manager answers to that, at least the folder is opened.
        if (watcher->isError())
            openFolder();
        watcher->deleteLater();
    });
}

void SystemBridge::open(const fs::path& file) {
    QDesktopServices::openUrl(fileUrl(file));
}

void SystemBridge::askForArchive(const QString& proposedName,
                                 std::function<void(std::optional<fs::path>)> done) {
    finishArchive(std::nullopt); // a question that is still open
    m_archiveDone = std::move(done);
    const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    const QString folder = QFileInfo(documents).isDir() ? documents : QDir::homePath();
    m_proposedArchive = folder + '/' + proposedName;
    m_saveDialog.ask(QGuiApplication::focusWindow(), tr("Salva il backup"), folder, proposedName);
}

void SystemBridge::answerArchive(const QString& typed) {
    QString place = typed.trimmed();
    if (place.isEmpty()) {
        finishArchive(std::nullopt);
        return;
    }
    if (place.startsWith("~/"))
        place.remove(0, 2);
    if (!place.endsWith(".zip", Qt::CaseInsensitive))
        place += ".zip";
    finishArchive(pathOf(QDir::home().absoluteFilePath(place)));
}

void SystemBridge::finishArchive(std::optional<fs::path> place) {
    if (const auto done = std::exchange(m_archiveDone, nullptr))
        done(std::move(place));
}

void SystemBridge::setWatching(bool watches) {
    if (!watches) {
        m_timer.stop();
        return;
    }
    if (m_timer.isActive())
        return;
    m_timer.start();
    QTimer::singleShot(kFirstLookMilliseconds, this, &SystemBridge::look);
}

void SystemBridge::look() {
    std::vector<RunningApplication> copies = m_claude.running();
    if (copies == m_copies)
        return;
    m_copies = std::move(copies);
    emit claudeCopiesChanged();
}

} // namespace selvane
