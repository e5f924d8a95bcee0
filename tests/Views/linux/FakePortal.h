// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QDBusAbstractAdaptor>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusVariant>
#include <QStringList>
#include <QVariantMap>

#include <functional>
#include <utility>

namespace selvane::test {

inline constexpr auto kPortalPath = "/org/freedesktop/portal/desktop";

/// A dialog that is open, or has been.
class FakeRequest : public QDBusAbstractAdaptor {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Request")

public:
    FakeRequest(QObject* dialog, std::function<void()> whenClosed)
        : QDBusAbstractAdaptor(dialog), m_whenClosed(std::move(whenClosed)) {}

    // NOLINTBEGIN(readability-identifier-naming): the portal's own names
public slots:
    void Close() { m_whenClosed(); }
    // NOLINTEND(readability-identifier-naming)

private:
    std::function<void()> m_whenClosed;
};

/// The desktop's side of the file dialog: records requests and answers when told to.
class FakeFileChooser : public QDBusAbstractAdaptor {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.FileChooser")

public:
    explicit FakeFileChooser(QObject* desktop) : QDBusAbstractAdaptor(desktop) {}

    QString title;
    QVariantMap options;
    QString window;
    QStringList requests; ///< paths, the newest last
    QStringList closed;   ///< those given up
    bool opens = false;   ///< whether a file that is there has been asked for

    void answer(uint response, const QVariantMap& results) const {
        answer(requests.last(), response, results);
    }
    static void answer(const QString& request, uint response, const QVariantMap& results) {
        QDBusMessage signal =
            QDBusMessage::createSignal(request, "org.freedesktop.portal.Request", "Response");
        signal << response << results;
        QDBusConnection("desktop").send(signal);
    }

    // NOLINTBEGIN(readability-identifier-naming): the portal's own names
public slots:
    QDBusObjectPath OpenFile(const QString& itsWindow, const QString& itsTitle, const QVariantMap& itsOptions,
                             const QDBusMessage& call) {
        opens = true;
        return SaveFile(itsWindow, itsTitle, itsOptions, call);
    }
    QDBusObjectPath SaveFile(const QString& itsWindow, const QString& itsTitle, const QVariantMap& itsOptions,
                             const QDBusMessage& call) {
        window = itsWindow;
        title = itsTitle;
        options = itsOptions;
        const QString path = QStringLiteral("%1/request/%2/%3")
                                 .arg(kPortalPath, call.service().mid(1).replace('.', '_'),
                                      options["handle_token"].toString());
        auto* dialog = new QObject(this);
        new FakeRequest(dialog, [this, path] { closed += path; });
        QDBusConnection("desktop").registerObject(path, dialog);
        requests += path;
        return QDBusObjectPath(path);
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
