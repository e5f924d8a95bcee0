// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QAbstractListModel>
#include <QQmlEngine>
#include <QTimer>

#include "AppModel/AppModel.h"

namespace selvane {

/// The profiles as the picker and the sidebar show them, in the application's order. It follows its changes.
class ProfileListModel : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT

    Q_PROPERTY(selvane::AppModel* app READ app WRITE setApp NOTIFY appChanged REQUIRED)
    Q_PROPERTY(int count READ count NOTIFY countChanged)

public:
    enum Role {
        IdRole = Qt::UserRole,
        NameRole,
        SummaryRole,
        LookRole,
        IsRunningRole,     ///< open in Claude Desktop
        IsActiveRole,      ///< launched last
        HasOwnAccountRole, ///< its own account, not the built-in one's
        HasSourceRole,
        SourceNameRole, ///< its id if it is unknown; empty without a source
        WasLaunchedRole,
        LastLaunchRole, ///< "Mai avviato" or, for example, "ieri"
        SubtitleRole,   ///< "Mai avviato" or, for example, "Avviato ieri"
    };

    explicit ProfileListModel(QObject* parent = nullptr);

    AppModel* app() const { return m_app; }
    void setApp(AppModel* app);
    int count() const { return rowCount({}); }
    Q_INVOKABLE int indexOf(const QString& profileId) const; ///< -1 if there is none
    Q_INVOKABLE QString idNear(int row) const; ///< id of the nearest existing row; empty without profiles

    int rowCount(const QModelIndex& parent) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

signals:
    void appChanged();
    void countChanged();

private:
    friend struct RowUpdate;

    void update();
    void changed(const QList<int>& roles);

    AppModel* m_app = nullptr;
    // A copy: the application's own list may change before the views are told.
    std::vector<Profile> m_profiles;
    std::optional<std::string> m_activeID;
    QTimer m_minute{this}; ///< refreshes texts such as "2 minuti fa"
};

} // namespace selvane
