// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QMetaProperty>
#include <QObject>
#include <QVariantMap>

#include <gtest/gtest.h>

namespace selvane::test {

/// What a view shows of an object: properties are read again only when their signal says so.
class Mirror : public QObject {
    Q_OBJECT

public:
    explicit Mirror(QObject& shown) : m_shown(shown) {
        const QMetaMethod read = metaObject()->method(metaObject()->indexOfSlot("read()"));
        const QMetaObject* type = shown.metaObject();
        for (int i = 0; i < type->propertyCount(); ++i) {
            if (!type->property(i).hasNotifySignal())
                continue;
            connect(&shown, type->property(i).notifySignal(), this, read, Qt::UniqueConnection);
            m_seen[type->property(i).name()] = type->property(i).read(&shown);
        }
    }

    /// Fails for each property that has changed without its signal.
    void expectUpToDate() const {
        for (auto seen = m_seen.begin(); seen != m_seen.end(); ++seen)
            EXPECT_EQ(seen.value(), m_shown.property(seen.key().toUtf8())) << seen.key().toStdString();
    }

private slots:
    void read() {
        const QMetaMethod signal = m_shown.metaObject()->method(senderSignalIndex());
        const QMetaObject* type = m_shown.metaObject();
        for (int i = 0; i < type->propertyCount(); ++i) {
            if (type->property(i).notifySignal() == signal)
                m_seen[type->property(i).name()] = type->property(i).read(&m_shown);
        }
    }

private:
    QObject& m_shown;
    QVariantMap m_seen;
};

} // namespace selvane::test
