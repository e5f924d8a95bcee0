// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "Views/linux/PortalSettings.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QGuiApplication>

#include "Views/linux/Portal.h"

namespace selvane {
namespace {

const QString kPath = QStringLiteral("/org/freedesktop/portal/desktop");
const QString kInterface = QStringLiteral("org.freedesktop.portal.Settings");
const QString kGnome = QStringLiteral("org.gnome.desktop.interface");
const QString kTextFactor = QStringLiteral("text-scaling-factor");
const QString kAnimations = QStringLiteral("enable-animations");
const QString kPlasma = QStringLiteral("org.kde.kdeglobals.KDE");
const QString kAnimationDuration = QStringLiteral("AnimationDurationFactor");

/// The portal wraps a value once more when it is read than when it reports a change.
QVariant unwrapped(QVariant value) {
    while (value.canConvert<QDBusVariant>())
        value = value.value<QDBusVariant>().variant();
    return value;
}

} // namespace

std::unique_ptr<QObject> followDesktop(SystemAppearance& appearance) {
    return std::make_unique<PortalSettings>(appearance);
}

PortalSettings::PortalSettings(SystemAppearance& appearance) : m_appearance(appearance) {
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected())
        return;
    bus.connect(portalService(), kPath, kInterface, QStringLiteral("SettingChanged"), this,
                SLOT(settingChanged(QString, QString, QDBusVariant)));
    const std::pair<QString, QString> settings[] = {
        {kGnome, kTextFactor}, {kGnome, kAnimations}, {kPlasma, kAnimationDuration}};
    for (const auto& [group, key] : settings) {
        QDBusMessage call =
            QDBusMessage::createMethodCall(portalService(), kPath, kInterface, QStringLiteral("Read"));
        call << group << key;
        auto* watcher = new QDBusPendingCallWatcher(bus.asyncCall(call), this);
        connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, group = group, key = key, watcher] {
            const QDBusPendingReply<QDBusVariant> reply = *watcher;
            watcher->deleteLater();
            if (reply.isValid())
                settingChanged(group, key, reply.value());
        });
    }
}

void PortalSettings::settingChanged(const QString& group, const QString& key, const QDBusVariant& value) {
    const QVariant setting = unwrapped(value.variant());
    // On X11, the resolution already includes the factor.
    const bool scalesItself = QGuiApplication::platformName() == QStringLiteral("xcb");
    if (group == kGnome && key == kTextFactor && !scalesItself)
        m_appearance.setTextFactor(setting.toDouble());
    else if (group == kGnome && key == kAnimations)
        m_appearance.setReducedMotion(!setting.toBool());
    else if (group == kPlasma && key == kAnimationDuration)
        m_appearance.setReducedMotion(qFuzzyIsNull(setting.toDouble()));
}

} // namespace selvane
