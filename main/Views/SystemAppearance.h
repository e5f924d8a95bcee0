// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QDBusPendingCall>
#include <QDBusVariant>
#include <QObject>
#include <QQmlEngine>

namespace selvane {

/// What the user has asked of the whole desktop: larger text and less motion. It follows changes.
class SystemAppearance : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

    Q_PROPERTY(double textScale READ textScale NOTIFY changed)
    Q_PROPERTY(bool reducedMotion READ reducedMotion NOTIFY changed)

public:
    explicit SystemAppearance(QObject* parent = nullptr);

    /// Asks the desktop for its settings, without waiting for the answer. Before that, only the screen
    /// counts.
    void read();

    double textScale() const; ///< 1: as designed
    bool reducedMotion() const { return m_reducedMotion; }

signals:
    void changed();

private slots:
    void settingChanged(const QString& group, const QString& key, const QDBusVariant& value);

private:
    double m_textFactor = 1;
    bool m_reducedMotion = false;
};

} // namespace selvane
