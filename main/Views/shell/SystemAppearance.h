// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QQmlEngine>

#include <memory>

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
    void setTextFactor(double factor);
    void setReducedMotion(bool reduced);

signals:
    void changed();

private:
    double m_textFactor = 1;
    bool m_reducedMotion = false;
    std::unique_ptr<QObject> m_settings;
};

/// Hands over the desktop's settings, now or as soon as they are known, and what changes of them, as long as
/// the object lives. `appearance` must live longer.
std::unique_ptr<QObject> followDesktop(SystemAppearance& appearance);

} // namespace selvane
