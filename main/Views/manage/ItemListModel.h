// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QAbstractListModel>
#include <QQmlEngine>

#include <vector>

#include "model/ComponentItem.h"

namespace selvane {

/// The items of one component's folder, each with its relation to the source profile.
class ItemListModel : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("owned by a ComponentModel")

    Q_PROPERTY(int count READ count NOTIFY countChanged)

public:
    enum Kind {
        Merged, ///< links to the source's item
        Linked, ///< links to something else
        Own,
        Broken,  ///< a dangling link
        Changed, ///< own, although it would be shared
    };
    Q_ENUM(Kind)
    enum Role { NameRole = Qt::UserRole, KindRole, IsLinkRole };

    struct Entry {
        ComponentItem item;
        Kind kind = Own;

        bool operator==(const Entry&) const = default;
    };

    using QAbstractListModel::QAbstractListModel;

    /// Resets the rows only if something has changed.
    void setEntries(std::vector<Entry> entries);
    const ComponentItem* item(int row) const; ///< null outside the list

    int count() const { return static_cast<int>(m_entries.size()); }
    int linkCount() const;
    Q_INVOKABLE int rowOf(const QString& name) const; ///< -1 without such an item
    Q_INVOKABLE bool isLink(int row) const;           ///< false outside the list

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

signals:
    void countChanged();

private:
    std::vector<Entry> m_entries;
};

} // namespace selvane
