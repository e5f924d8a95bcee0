// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QQmlEngine>
#include <QString>

#include <memory>

namespace selvane {

/// Installs new versions, if the application does that itself.
class Updater : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;

    virtual bool canCheck() const = 0;
    virtual void check() = 0; ///< shows its own interface
    virtual bool installsAutomatically() const = 0;
    virtual void setInstallsAutomatically(bool value) = 0; ///< true also turns on checking for them

signals:
    void canCheckChanged();
};

/// The updater of this installation, already started; null if new versions come in another way.
std::unique_ptr<Updater> makeUpdater();

/// The application's updates as the windows see them. Without an updater, none are available and nothing is
/// written.
class Updates : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the application")

    Q_PROPERTY(bool canCheck READ canCheck NOTIFY canCheckChanged)
    Q_PROPERTY(bool isAvailable READ isAvailable CONSTANT)
    Q_PROPERTY(bool installsAutomatically READ installsAutomatically WRITE setInstallsAutomatically NOTIFY
                   installsAutomaticallyChanged)
    Q_PROPERTY(QString version READ version CONSTANT)

public:
    explicit Updates(std::unique_ptr<Updater> updater, QObject* parent = nullptr);

    bool canCheck() const { return m_updater && m_updater->canCheck(); }
    bool isAvailable() const { return m_updater != nullptr; }
    bool installsAutomatically() const { return m_updater && m_updater->installsAutomatically(); }
    void setInstallsAutomatically(bool value);
    static QString version();

public slots:
    void checkNow();

signals:
    void canCheckChanged();
    void installsAutomaticallyChanged();

private:
    std::unique_ptr<Updater> m_updater;
};

} // namespace selvane
