// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QQmlEngine>

#include <memory>

namespace selvane {

/// The user's settings for the whole desktop: larger text and reduced motion. It follows changes.
class SystemAppearance : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

    Q_PROPERTY(double textScale READ textScale NOTIFY changed)
    Q_PROPERTY(bool reducedMotion READ reducedMotion NOTIFY changed)

public:
    explicit SystemAppearance(QObject* parent = nullptr);

    /// Asks the desktop for its settings without waiting for the answer. Until it comes, only the screen
    /// counts.
    void read();

    double textScale() const; ///< 1 means as designed
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

/// Passes on the desktop's settings, now or once they are known, and later changes, for as long as the
/// returned object lives. `appearance` must outlive it.
std::unique_ptr<QObject> followDesktop(SystemAppearance& appearance);

} // namespace selvane
