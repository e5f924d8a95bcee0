// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "Views/shell/SystemShell.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDesktopServices>
#include <QGuiApplication>
#include <QIcon>
#include <QPixmap>
#include <QStandardPaths>

#include "Views/shell/FileUrl.h"
#include "Views/shell/LauncherApp.h"
#include "artwork/AppIcon.h"

namespace selvane {
namespace {

/// For window managers that don't find the desktop entry.
void setWindowIcon() {
    QIcon icon;
    for (const int size : {16, 32, 48, 128})
        icon.addPixmap(QPixmap::fromImage(appIcon(size)));
    QGuiApplication::setWindowIcon(icon);
}

} // namespace

bool hasDisplay() {
    return qEnvironmentVariableIsSet("QT_QPA_PLATFORM") || !qEnvironmentVariableIsEmpty("DISPLAY") ||
           !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY");
}

std::unique_ptr<QSettings> openSettings() {
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation);
    return std::make_unique<QSettings>(folder + "/selvane/preferenze.conf", QSettings::IniFormat);
}

std::unique_ptr<QObject> makeSystemShell(LauncherApp& launcher) {
    auto shell = std::make_unique<QObject>();
    QObject::connect(&launcher, &LauncherApp::begun, shell.get(), &setWindowIcon);
    return shell;
}

void revealItem(const std::filesystem::path& item) {
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
    auto* watcher = new QDBusPendingCallWatcher(bus.asyncCall(call), qApp);
    QObject::connect(watcher, &QDBusPendingCallWatcher::finished, watcher, [watcher, openFolder] {
        // If no file manager answers, at least open the folder.
        if (watcher->isError())
            openFolder();
        watcher->deleteLater();
    });
}

} // namespace selvane
