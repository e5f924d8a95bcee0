// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "Views/linux/PortalSaveDialog.h"

#include <QCoreApplication>
#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusObjectPath>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QFile>
#include <QGuiApplication>

#include <utility>

#include "Views/linux/Portal.h"

namespace selvane {
namespace {

const QString kRequest = QStringLiteral("org.freedesktop.portal.Request");

/// A kind of files in the portal's form: rules that are patterns (0) or content types (1).
struct FilterRule {
    uint kind = 1;
    QString text;
};
struct FileFilter {
    QString name;
    QList<FilterRule> rules;
};

QDBusArgument& operator<<(QDBusArgument& argument, const FilterRule& rule) {
    argument.beginStructure();
    argument << rule.kind << rule.text;
    argument.endStructure();
    return argument;
}
const QDBusArgument& operator>>(const QDBusArgument& argument, FilterRule& rule) {
    argument.beginStructure();
    argument >> rule.kind >> rule.text;
    argument.endStructure();
    return argument;
}
QDBusArgument& operator<<(QDBusArgument& argument, const FileFilter& filter) {
    argument.beginStructure();
    argument << filter.name << filter.rules;
    argument.endStructure();
    return argument;
}
const QDBusArgument& operator>>(const QDBusArgument& argument, FileFilter& filter) {
    argument.beginStructure();
    argument >> filter.name >> filter.rules;
    argument.endStructure();
    return argument;
}

/// A path is bytes with a NUL at the end.
QByteArray portalPath(const QString& path) {
    return QFile::encodeName(path).append('\0');
}

} // namespace
} // namespace selvane

Q_DECLARE_METATYPE(selvane::FilterRule)
Q_DECLARE_METATYPE(selvane::FileFilter)

namespace selvane {

std::unique_ptr<SaveDialog> makeSaveDialog() {
    return std::make_unique<PortalSaveDialog>();
}

void PortalSaveDialog::ask(QWindow* parent, const QString& title, const QString& folder,
                           const QString& name) {
    call(QStringLiteral("SaveFile"), parent, title,
         {{"current_name", name}, {"current_folder", portalPath(folder)}});
}

void PortalSaveDialog::askForExisting(QWindow* parent, const QString& title, const QString& folder) {
    call(QStringLiteral("OpenFile"), parent, title, {{"current_folder", portalPath(folder)}});
}

/// Shows a dialog.
void PortalSaveDialog::call(const QString& method, QWindow* parent, const QString& title,
                            QVariantMap options) {
    qDBusRegisterMetaType<FilterRule>();
    qDBusRegisterMetaType<QList<FilterRule>>();
    qDBusRegisterMetaType<FileFilter>();
    qDBusRegisterMetaType<QList<FileFilter>>();
    giveUp();
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected()) {
        QMetaObject::invokeMethod(this, &PortalSaveDialog::unavailable, Qt::QueuedConnection);
        return;
    }
    // The portal answers at a path known in advance, perhaps even before the call returns.
    const QString token =
        QStringLiteral("selvane_%1_%2").arg(QCoreApplication::applicationPid()).arg(++m_count);
    const QString sender = bus.baseService().mid(1).replace('.', '_');
    m_request = "/org/freedesktop/portal/desktop/request/" + sender + '/' + token;
    bus.connect(portalService(), m_request, kRequest, QStringLiteral("Response"), this,
                SLOT(respond(uint, QVariantMap)));

    const QList<FileFilter> filters = {{tr("Archivio zip"), {{1, QStringLiteral("application/zip")}}}};
    options.insert({{"handle_token", token}, {"modal", true}, {"filters", QVariant::fromValue(filters)}});
    QDBusMessage message =
        QDBusMessage::createMethodCall(portalService(), QStringLiteral("/org/freedesktop/portal/desktop"),
                                       QStringLiteral("org.freedesktop.portal.FileChooser"), method);
    message << handleOf(parent) << title << options;
    auto* watcher = new QDBusPendingCallWatcher(bus.asyncCall(message), this);
    m_isAnnounced = true;
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher, request = m_request] {
        const QDBusPendingReply<QDBusObjectPath> reply = *watcher;
        watcher->deleteLater();
        if (request != m_request) {
            closeDialog(request);
            return;
        }
        m_isAnnounced = false;
        if (!reply.isError())
            return;
        forget();
        emit unavailable();
    });
}

/// Tells the portal which window the dialog belongs to; empty if that can't be told.
QString PortalSaveDialog::handleOf(QWindow* window) {
    if (window == nullptr)
        return {};
    if (QGuiApplication::platformName() == QStringLiteral("xcb"))
        return "x11:" + QString::number(window->winId(), 16);
    m_parent = std::make_unique<ExportedWindow>(window);
    return m_parent->name().isEmpty() ? QString() : "wayland:" + m_parent->name();
}

void PortalSaveDialog::giveUp() {
    // The portal doesn't know a request before it has answered the call.
    const bool isKnown = !m_isAnnounced;
    if (const QString request = forget(); !request.isEmpty() && isKnown)
        closeDialog(request);
}

void PortalSaveDialog::closeDialog(const QString& request) {
    QDBusConnection::sessionBus().asyncCall(
        QDBusMessage::createMethodCall(portalService(), request, kRequest, QStringLiteral("Close")));
}

QString PortalSaveDialog::forget() {
    m_isAnnounced = false;
    m_parent.reset();
    const QString request = std::exchange(m_request, {});
    if (!request.isEmpty())
        QDBusConnection::sessionBus().disconnect(portalService(), request, kRequest,
                                                 QStringLiteral("Response"), this,
                                                 SLOT(respond(uint, QVariantMap)));
    return request;
}

void PortalSaveDialog::respond(uint response, const QVariantMap& results) {
    forget();
    const QStringList places = results.value("uris").toStringList();
    if (response == 0 && !places.isEmpty())
        emit chosen(QUrl(places.first()));
    else
        emit cancelled(); // some portals report Escape as an end of another kind
}

} // namespace selvane
