// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "Views/shell/SystemShell.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDesktopServices>
#include <QDir>
#include <QGuiApplication>
#include <QIcon>
#include <QPalette>
#include <QPixmap>
#include <QStandardPaths>

#include <algorithm>
#include <utility>

#include "Views/linux/WaylandWindow.h"
#include "Views/shell/FileUrl.h"
#include "Views/shell/LauncherApp.h"
#include "artwork/AppIcon.h"
#include "artwork/Brand.h"
#include "model/LauncherError.h"
#include "platform/linux/DesktopServices.h"

namespace selvane {
namespace {

constexpr auto kTokenVariable = "XDG_ACTIVATION_TOKEN";

bool knowsWayland() {
    const QStringList folders = QCoreApplication::libraryPaths();
    return std::any_of(folders.begin(), folders.end(), [](const QString& folder) {
        return !QDir(folder + "/platforms").entryList({"libqwayland*"}, QDir::Files).isEmpty();
    });
}

/// The frame that Qt draws around a window where the compositor draws none.
void darkenFrame() {
    QPalette palette = QGuiApplication::palette();
    palette.setColor(QPalette::Window, Brand::bg);
    palette.setColor(QPalette::WindowText, Brand::fg);
    palette.setColor(QPalette::Disabled, QPalette::WindowText, Brand::fg3);
    QGuiApplication::setPalette(palette);
}

/// For window managers that don't find the desktop entry.
void setWindowIcon() {
    QIcon icon;
    for (const int size : {16, 32, 48, 128})
        icon.addPixmap(QPixmap::fromImage(appIcon(size)));
    QGuiApplication::setWindowIcon(icon);
}

} // namespace

void requireDisplay() {
    if (qEnvironmentVariableIsSet("QT_QPA_PLATFORM") || !qEnvironmentVariableIsEmpty("DISPLAY"))
        return;
    if (qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY"))
        throw LauncherError(kNoDisplay);
    if (!knowsWayland())
        throw LauncherError(
            "Per mostrare le finestre con Wayland manca il pacchetto qt6-wayland: installalo, "
            "oppure usa Selvane con i suoi comandi (selvane --help)");
    // Unless the session says that it is one of Wayland, Qt would look for an X server.
    qputenv("QT_QPA_PLATFORM", "wayland");
}

QByteArray takeStartToken(Environment& environment) {
    environment.erase("DESKTOP_STARTUP_ID"); // Qt itself uses it
    const auto token = environment.extract(kTokenVariable);
    return token.empty() ? QByteArray() : QByteArray::fromStdString(token.mapped());
}

void useStartToken(const QByteArray& token) {
    // Qt takes it from there when a window asks for the keyboard.
    if (!token.isEmpty())
        qputenv(kTokenVariable, token);
}

Environment startVariables() {
    const QString token = activationToken(QGuiApplication::focusWindow());
    return token.isEmpty() ? Environment() : Environment{{kTokenVariable, token.toStdString()}};
}

/// With Wayland only a desktop that keeps it itself; X11 has a protocol to ask.
bool keepsClipboard() {
    if (!QGuiApplication::platformName().startsWith("wayland"))
        return desktopServices().hasClipboardManager();
    const QByteArrayList desktops = qgetenv("XDG_CURRENT_DESKTOP").split(':');
    return desktops.contains("GNOME") || desktops.contains("KDE");
}

std::unique_ptr<QSettings> openSettings() {
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation);
    return std::make_unique<QSettings>(folder + "/selvane/preferenze.conf", QSettings::IniFormat);
}

std::unique_ptr<QObject> makeSystemShell(LauncherApp& launcher) {
    darkenFrame();
    auto shell = std::make_unique<QObject>();
    QObject::connect(&launcher, &LauncherApp::begun, shell.get(), &setWindowIcon);
    return shell;
}

bool canReceiveSignIns() {
    return true;
}

QStringList comparisonPrograms() {
    return {QStringLiteral("meld"), QStringLiteral("kompare")};
}

void revealItem(const std::filesystem::path& item, std::function<void()> failed) {
    QDBusConnection bus = QDBusConnection::sessionBus();
    const auto openFolder = [folder = item.parent_path(), failed = std::move(failed)] {
        if (!QDesktopServices::openUrl(fileUrl(folder)))
            failed();
    };
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
