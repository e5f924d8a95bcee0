// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QDBusAbstractAdaptor>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusVariant>
#include <QVariantMap>

namespace selvane::test {

inline constexpr auto kPortalPath = "/org/freedesktop/portal/desktop";

/// The desktop's side of the file dialog: records requests and answers when told to.
class FakeFileChooser : public QDBusAbstractAdaptor {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.FileChooser")

public:
    explicit FakeFileChooser(QObject* desktop) : QDBusAbstractAdaptor(desktop) {}

    QString title;
    QVariantMap options;
    QString sender;

    void answer(uint response, const QVariantMap& results) const {
        const QString path = QStringLiteral("%1/request/%2/%3")
                                 .arg(kPortalPath, QString(sender).mid(1).replace('.', '_'),
                                      options.value("handle_token").toString());
        QDBusMessage signal = QDBusMessage::createSignal(path, "org.freedesktop.portal.Request", "Response");
        signal << response << results;
        QDBusConnection("desktop").send(signal);
    }

    // NOLINTBEGIN(readability-identifier-naming): the portal's own names
public slots:
    QDBusObjectPath SaveFile(const QString& /*parent*/, const QString& itsTitle,
                             const QVariantMap& itsOptions, const QDBusMessage& call) {
        title = itsTitle;
        options = itsOptions;
        sender = call.service();
        return QDBusObjectPath("/as/announced");
    }
    // NOLINTEND(readability-identifier-naming)
};

/// The desktop's settings.
class FakeSettings : public QDBusAbstractAdaptor {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Settings")

public:
    explicit FakeSettings(QObject* desktop) : QDBusAbstractAdaptor(desktop) {}

    // NOLINTBEGIN(readability-identifier-naming): the portal's own names
public slots:
    QDBusVariant Read(const QString& /*group*/, const QString& key, const QDBusMessage& call) {
        if (key == "text-scaling-factor")
            return QDBusVariant(QVariant::fromValue(QDBusVariant(1.25)));
        QDBusConnection("desktop").send(
            call.createErrorReply("org.freedesktop.portal.Error.NotFound", "no such setting"));
        call.setDelayedReply(true);
        return {};
    }

signals:
    void SettingChanged(const QString& group, const QString& key, const QDBusVariant& value);
    // NOLINTEND(readability-identifier-naming)
};

} // namespace selvane::test
