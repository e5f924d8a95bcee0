// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "Views/shell/SystemBridge.h"

#include <QClipboard>
#include <QCoreApplication>
#include <QDesktopServices>
#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QStandardPaths>

#include <utility>

#include "Views/shell/FileUrl.h"
#include "Views/shell/SystemShell.h"
#include "artwork/ProfileIcon.h"
#include "desktop/SignInHandler.h"

namespace selvane {
namespace {

namespace fs = std::filesystem;

fs::path pathOf(const QString& file) {
    return QFile::encodeName(file).toStdString();
}

/// Where archives are proposed to be.
QString archiveFolder() {
    const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    return QFileInfo(documents).isDir() ? documents : QDir::homePath();
}

} // namespace

SystemBridge::SystemBridge(std::function<std::vector<OpenCopy>()> look)
    : m_watch(makeApplicationWatch(std::move(look))), m_saveDialog(makeSaveDialog()) {
    connect(m_saveDialog.get(), &SaveDialog::chosen, this,
            [this](const QUrl& file) { finishArchive(pathOf(file.toLocalFile())); });
    connect(m_saveDialog.get(), &SaveDialog::cancelled, this, [this] { finishArchive(std::nullopt); });
    connect(m_saveDialog.get(), &SaveDialog::unavailable, this,
            [this] { emit archiveWanted(m_proposedArchive, m_isThere); });
    connect(m_watch.get(), &ApplicationWatch::changed, this, &SystemBridge::claudeCopiesChanged);
}

void SystemBridge::endApplication() {
    QMetaObject::invokeMethod(qApp, &QCoreApplication::quit, Qt::QueuedConnection);
}

bool SystemBridge::copyToClipboard(const QString& text) {
    QGuiApplication::clipboard()->setText(text);
    return keepsClipboard();
}

Environment SystemBridge::startVariables() {
    return selvane::startVariables();
}

void SystemBridge::reveal(const fs::path& item, std::function<void()> failed) {
    revealItem(item, std::move(failed));
}

void SystemBridge::open(const fs::path& file, std::function<void()> failed) {
    if (!QDesktopServices::openUrl(fileUrl(file)))
        failed();
}

bool SystemBridge::compare(const fs::path& first, const fs::path& second) {
    for (const QString& name : comparisonPrograms()) {
        const QString program = QStandardPaths::findExecutable(name);
        if (program.isEmpty())
            continue;
        Environment environment = currentEnvironment();
        environment.merge(startVariables());
        process::startDetached(pathOf(program), {first.string(), second.string()}, environment,
                               homeFolder(environment));
        return true;
    }
    return false;
}

fs::path SystemBridge::program() const {
    return pathOf(QCoreApplication::applicationFilePath());
}

std::vector<IconImage> SystemBridge::drawIcon(const ProfileLook& look) const {
    return profileIcon(look);
}

bool SystemBridge::canReceiveSignIns() const {
    return selvane::canReceiveSignIns();
}

bool SystemBridge::receivesSignIns() const {
    return canReceiveSignIns() && SignInHandler(currentEnvironment()).isOn();
}

void SystemBridge::setReceivesSignIns(bool value) {
    const SignInHandler handler(currentEnvironment());
    if (value)
        handler.turnOn(program());
    else
        handler.turnOff();
}

void SystemBridge::askForArchive(const QString& proposedName,
                                 std::function<void(std::optional<fs::path>)> done) {
    finishArchive(std::nullopt); // cancels a question that is still open
    m_archiveDone = std::move(done);
    m_isThere = false;
    m_proposedArchive = archiveFolder() + '/' + proposedName;
    m_saveDialog->ask(QGuiApplication::focusWindow(), tr("Salva il backup"), archiveFolder(), proposedName);
}

void SystemBridge::askForBackup(std::function<void(std::optional<fs::path>)> done) {
    finishArchive(std::nullopt);
    m_archiveDone = std::move(done);
    m_isThere = true;
    m_proposedArchive = archiveFolder() + '/';
    m_saveDialog->askForExisting(QGuiApplication::focusWindow(), tr("Scegli un backup di Selvane"),
                                 archiveFolder());
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
    place = QDir::home().absoluteFilePath(place);
    if (m_isThere) {
        finishArchive(pathOf(place));
        return;
    }
    if (const QFileInfo there(place); there.isSymLink() || (there.exists() && !there.isDir())) {
        m_replaced = place;
        emit replacementWanted(place);
        return;
    }
    finishArchive(pathOf(place));
}

void SystemBridge::answerReplacement(bool replaces) {
    if (replaces)
        finishArchive(pathOf(m_replaced));
    else
        emit archiveWanted(m_replaced, false);
}

void SystemBridge::finishArchive(std::optional<fs::path> place) {
    if (const auto done = std::exchange(m_archiveDone, nullptr))
        done(std::move(place));
}

} // namespace selvane
