// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QQmlEngine>

#include "AppModel/AppModel.h"

namespace selvane {

/// The tile that the picker's keyboard acts on, and what the keys do.
class PickerModel : public QObject {
    Q_OBJECT
    QML_ELEMENT

    Q_PROPERTY(selvane::AppModel* app READ app WRITE setApp NOTIFY appChanged REQUIRED)
    /// Id of the focused profile; empty for none. It follows the application's selection, which a new profile
    /// gets, too.
    Q_PROPERTY(QString focused READ focused WRITE setFocused NOTIFY focusedChanged)

public:
    using QObject::QObject;

    AppModel* app() const { return m_app; }
    void setApp(AppModel* app);
    QString focused() const { return m_focused; }
    void setFocused(const QString& id);

    /// Focuses the profile launched last when called first, later the one selected in the application. Called
    /// each time the picker is shown.
    Q_INVOKABLE void begin();
    /// Moves one tile back or forward and wraps around. False if there are no profiles.
    Q_INVOKABLE bool move(int step);
    /// If no profile is focused, does nothing and returns false.
    Q_INVOKABLE bool launchFocused();
    /// Focuses and launches the profile at the position given by the typed digits, counted from 1. False if
    /// there is none.
    Q_INVOKABLE bool launchNumber(const QString& digits);

signals:
    void appChanged();
    void focusedChanged();

private:
    AppModel* m_app = nullptr;
    QString m_focused;
    bool m_hasBegun = false;
};

} // namespace selvane
