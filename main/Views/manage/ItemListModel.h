// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QAbstractListModel>
#include <QQmlEngine>

#include <string>
#include <vector>

#include "model/ComponentItem.h"

namespace selvane {

/// The items of one component's folder, each with its relation to the source profile. The rows are those
/// whose name holds every word of the filter; case and accents don't count.
class ItemListModel : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("owned by a ComponentModel")

    Q_PROPERTY(int count READ count NOTIFY countChanged) ///< of the rows
    Q_PROPERTY(int total READ total NOTIFY countChanged) ///< of the items
    Q_PROPERTY(QString filter READ filter WRITE setFilter NOTIFY filterChanged)

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

    int count() const { return static_cast<int>(m_rows.size()); }
    int total() const { return static_cast<int>(m_entries.size()); }
    int linkCount() const; ///< of all items
    QString filter() const { return m_filter; }
    void setFilter(const QString& filter);
    Q_INVOKABLE int rowOf(const QString& name) const; ///< -1 without such a row
    Q_INVOKABLE bool isLink(int row) const;           ///< false outside the list

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

signals:
    void countChanged();
    void filterChanged();

private:
    void choose();

    std::vector<Entry> m_entries;
    std::vector<std::string> m_searchable; ///< the names, once there has been a filter
    std::vector<std::size_t> m_rows;       ///< the positions of the entries shown
    QString m_filter;
};

} // namespace selvane
