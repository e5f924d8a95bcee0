// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QAbstractListModel>
#include <QQmlEngine>
#include <QTimer>

#include "AppModel/AppModel.h"
#include "Views/manage/ProfileSearch.h"

namespace selvane {

/// The profiles as the picker and the sidebar show them: in the application's order, or with those launched
/// last first, and all of them or those that a search finds. It follows the application's changes.
class ProfileListModel : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT

    Q_PROPERTY(selvane::AppModel* app READ app WRITE setApp NOTIFY appChanged REQUIRED)
    Q_PROPERTY(int count READ count NOTIFY countChanged)
    Q_PROPERTY(int total READ total NOTIFY countChanged) ///< without a search
    Q_PROPERTY(QString countText READ countText NOTIFY countChanged)
    Q_PROPERTY(QString search READ search WRITE setSearch NOTIFY searchChanged) ///< see `foundProfiles`
    Q_PROPERTY(bool recentFirst READ recentFirst WRITE setRecentFirst NOTIFY recentFirstChanged)

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
        LastLaunchRole,  ///< "Mai avviato" or, for example, "ieri"
        SubtitleRole,    ///< "Mai avviato" or, for example, "Avviato ieri"
        FoundInNameRole, ///< start and length of each part of the name that the search has found
        FoundInSummaryRole,
    };

    explicit ProfileListModel(QObject* parent = nullptr);

    AppModel* app() const { return m_app; }
    void setApp(AppModel* app);
    int count() const { return rowCount({}); }
    int total() const;
    QString countText() const; ///< for example "2 di 7 profili"
    QString search() const { return m_search; }
    void setSearch(const QString& text);
    bool recentFirst() const { return m_recentFirst; }
    void setRecentFirst(bool recentFirst);
    Q_INVOKABLE int indexOf(const QString& profileId) const; ///< -1 if there is none
    Q_INVOKABLE QString idNear(int row) const; ///< id of the nearest existing row; empty without profiles

    int rowCount(const QModelIndex& parent) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

signals:
    void appChanged();
    void countChanged();
    void searchChanged();
    void recentFirstChanged();

private:
    friend struct RowUpdate;

    void update();
    void refresh();
    void changed(const QList<int>& roles);

    AppModel* m_app = nullptr;
    // A copy: the application's own list may change before the views are told.
    std::vector<ListedProfile> m_rows;
    QString m_search;
    bool m_recentFirst = false;
    std::optional<std::string> m_activeID;
    QTimer m_minute{this}; ///< refreshes texts such as "2 minuti fa"
};

} // namespace selvane
