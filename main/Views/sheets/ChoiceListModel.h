// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QAbstractListModel>
#include <QQmlEngine>

#include <set>
#include <string>
#include <vector>

#include "model/ProfileLook.h"

namespace selvane {

/// A list whose entries are chosen one by one and can be filtered by a search text. Choosing all or none
/// affects only the entries that the search shows.
class ChoiceListModel : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("owned by a form")

    Q_PROPERTY(int total READ total NOTIFY entriesChanged)
    Q_PROPERTY(int chosenCount READ chosenCount NOTIFY chosenChanged)
    Q_PROPERTY(QString search READ search WRITE setSearch NOTIFY searchChanged)

public:
    struct Entry {
        std::string key; ///< a name or an id, not necessarily UTF-8
        QString title;
        QString detail;
        bool isChosen = false;
        QString aside = {}; ///< shown at the end of the row
        QString mark = {};  ///< shown in a badge
        QString group = {}; ///< what it is listed under; those of a group follow each other
        ProfileLook look = {.symbol = {}, .color = {}}; ///< without a symbol, none is shown
        bool isProfile = false;                         ///< the symbol is on a leaf

        bool operator==(const Entry&) const = default;
    };
    enum Role {
        TitleRole = Qt::UserRole,
        DetailRole,
        IsChosenRole,
        AsideRole,
        MarkRole,
        GroupRole,
        IsFirstRole, ///< of its group
        LookRole,
        IsProfileRole
    };

    using QAbstractListModel::QAbstractListModel;

    void setEntries(std::vector<Entry> entries);
    /// The same list once more: what was chosen and is still there stays chosen.
    void updateEntries(std::vector<Entry> entries);
    const std::vector<Entry>& entries() const { return m_entries; }
    std::set<std::string> chosenKeys() const;

    int total() const { return static_cast<int>(m_entries.size()); }
    int chosenCount() const;
    QString search() const { return m_search; }
    void setSearch(const QString& text);

    /// How many of a group are chosen, of how many.
    Q_INVOKABLE QString tallyOf(const QString& group) const;
    Q_INVOKABLE void toggle(int row);
    Q_INVOKABLE void chooseAll() { chooseShown(true); }
    Q_INVOKABLE void chooseNone() { chooseShown(false); }

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

signals:
    void entriesChanged();
    void chosenChanged();
    void searchChanged();

private:
    void chooseShown(bool chosen);
    std::vector<std::size_t> found() const;

    std::vector<Entry> m_entries;
    std::vector<std::size_t> m_shown; ///< positions in m_entries
    QString m_search;
};

} // namespace selvane
