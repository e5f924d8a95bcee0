// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QAbstractListModel>
#include <QQmlEngine>
#include <QTimer>

#include "AppModel/AppModel.h"

namespace selvane {

/// The profiles as the picker and the sidebar show them, in the order of the model. It follows the model.
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
        SymbolRole,
        IsRunningRole,     ///< open in Claude Desktop
        IsActiveRole,      ///< launched last
        HasOwnAccountRole, ///< an account of its own beside the built-in one
        HasSourceRole,
        SourceNameRole, ///< its id when it is unknown, empty without a source
        WasLaunchedRole,
        LastLaunchRole, ///< "Mai avviato" or for example "ieri"
        SubtitleRole,   ///< "Mai avviato" or for example "Avviato ieri"
    };

    explicit ProfileListModel(QObject* parent = nullptr);

    AppModel* app() const { return m_app; }
    void setApp(AppModel* app);
    int count() const { return rowCount({}); }
    Q_INVOKABLE int indexOf(const QString& profileId) const; ///< -1 when there is none
    Q_INVOKABLE QString idNear(int row) const; ///< of the nearest row there is; empty without profiles

    int rowCount(const QModelIndex& parent) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

signals:
    void appChanged();
    void countChanged();

private:
    void update();
    void changed(const QList<int>& roles);

    AppModel* m_app = nullptr;
    // The model's own list may have changed before views hear of it: they go on seeing this one until then.
    std::vector<Profile> m_profiles;
    std::optional<std::string> m_activeID;
    QTimer m_minute; ///< "2 minuti fa" doesn't stay true
};

} // namespace selvane
