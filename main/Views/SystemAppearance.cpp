// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "Views/SystemAppearance.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QGuiApplication>
#include <QScreen>

#include <algorithm>

namespace selvane {
namespace {

constexpr double kBaseDpi = 96;
constexpr double kLargestScale = 2;

// The settings of the desktop, as its portal hands them to applications.
const QString kService = QStringLiteral("org.freedesktop.portal.Desktop");
const QString kPath = QStringLiteral("/org/freedesktop/portal/desktop");
const QString kInterface = QStringLiteral("org.freedesktop.portal.Settings");
const QString kGnome = QStringLiteral("org.gnome.desktop.interface");
const QString kTextFactor = QStringLiteral("text-scaling-factor");
const QString kAnimations = QStringLiteral("enable-animations");
const QString kPlasma = QStringLiteral("org.kde.kdeglobals.KDE");
const QString kAnimationDuration = QStringLiteral("AnimationDurationFactor");

/// The portal wraps a value once more when it is read than when it has changed.
QVariant unwrapped(QVariant value) {
    while (value.canConvert<QDBusVariant>())
        value = value.value<QDBusVariant>().variant();
    return value;
}

} // namespace

SystemAppearance::SystemAppearance(QObject* parent) : QObject(parent) {
    if (const QScreen* screen = QGuiApplication::primaryScreen())
        connect(screen, &QScreen::logicalDotsPerInchChanged, this, &SystemAppearance::changed);
}

double SystemAppearance::textScale() const {
    const QScreen* screen = QGuiApplication::primaryScreen();
    const double screenScale = screen == nullptr ? 1 : screen->logicalDotsPerInch() / kBaseDpi;
    return std::clamp(screenScale * m_textFactor, 1.0, kLargestScale);
}

void SystemAppearance::read() {
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected())
        return;
    bus.connect(kService, kPath, kInterface, QStringLiteral("SettingChanged"), this,
                SLOT(settingChanged(QString, QString, QDBusVariant)));
    const std::pair<QString, QString> settings[] = {
        {kGnome, kTextFactor}, {kGnome, kAnimations}, {kPlasma, kAnimationDuration}};
    for (const auto& [group, key] : settings) {
        QDBusMessage call =
            QDBusMessage::createMethodCall(kService, kPath, kInterface, QStringLiteral("Read"));
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

void SystemAppearance::settingChanged(const QString& group, const QString& key, const QDBusVariant& value) {
    const QVariant setting = unwrapped(value.variant());
    // An X server's resolution already has the factor in it.
    const bool scalesItself = QGuiApplication::platformName() == QStringLiteral("xcb");
    if (group == kGnome && key == kTextFactor && !scalesItself)
        m_textFactor = setting.toDouble();
    else if (group == kGnome && key == kAnimations)
        m_reducedMotion = !setting.toBool();
    else if (group == kPlasma && key == kAnimationDuration)
        m_reducedMotion = qFuzzyIsNull(setting.toDouble());
    else
        return;
    emit changed();
}

} // namespace selvane
