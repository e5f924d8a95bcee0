// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QAbstractItemModel>
#include <QObject>
#include <QQmlEngine>
#include <QString>
#include <QStringList>

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
    /// The profiles that are shown, in their order: rows with the role "profileId".
    Q_PROPERTY(QAbstractItemModel* rows MEMBER m_rows NOTIFY rowsChanged)

public:
    using QObject::QObject;

    AppModel* app() const { return m_app; }
    void setApp(AppModel* app);
    QString focused() const { return m_focused; }
    void setFocused(const QString& id);

    /// Focuses the profile launched last when called first, later the one selected in the application. Called
    /// each time the picker is shown.
    Q_INVOKABLE void begin();
    /// While something is searched for, focuses the first profile found, none if there is none; afterwards
    /// the last one that was focused.
    Q_INVOKABLE void followSearch(bool isSearching);
    /// Moves one tile back or forward and wraps around. False if there are no profiles.
    Q_INVOKABLE bool move(int step);
    /// If no profile that is shown is focused, does nothing and returns false.
    Q_INVOKABLE bool launchFocused();
    /// Focuses and launches the profile at the position given by the typed digits, counted from 1. False if
    /// there is none.
    Q_INVOKABLE bool launchNumber(const QString& digits);

signals:
    void allAsked(); ///< what is focused next may not be among the profiles found
    void rowsChanged();
    void appChanged();
    void focusedChanged();

private:
    QStringList ids() const;

    AppModel* m_app = nullptr;
    QAbstractItemModel* m_rows = nullptr;
    QString m_focused;
    QString m_lastFocused; ///< never empty once one was
    bool m_hasBegun = false;
};

} // namespace selvane
