// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "Views/manage/ItemListModel.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "platform/text/Text.h"

namespace selvane {

void ItemListModel::setEntries(std::vector<Entry> entries) {
    if (entries == m_entries)
        return;
    beginResetModel();
    m_entries = std::move(entries);
    m_searchable.clear();
    choose();
    endResetModel();
    emit countChanged();
}

void ItemListModel::setFilter(const QString& filter) {
    if (filter == m_filter)
        return;
    m_filter = filter;
    beginResetModel();
    choose();
    endResetModel();
    emit filterChanged();
    emit countChanged();
}

void ItemListModel::choose() {
    const auto words = text::searchableWords(m_filter.toStdString());
    if (!words.empty() && m_searchable.empty())
        std::ranges::transform(m_entries, std::back_inserter(m_searchable),
                               [](const Entry& entry) { return text::searchable(entry.item.name); });
    m_rows.clear();
    for (std::size_t i = 0; i < m_entries.size(); ++i) {
        const auto holds = [&](const std::string& word) {
            return m_searchable[i].find(word) != std::string::npos;
        };
        if (std::ranges::all_of(words, holds))
            m_rows.push_back(i);
    }
}

const ComponentItem* ItemListModel::item(int row) const {
    return row >= 0 && row < count() ? &m_entries[m_rows[static_cast<std::size_t>(row)]].item : nullptr;
}

int ItemListModel::rowOf(const QString& name) const {
    const auto isIt = [&, wanted = name.toStdString()](std::size_t at) {
        return m_entries[at].item.name == wanted;
    };
    const auto found = std::ranges::find_if(m_rows, isIt);
    return found == m_rows.end() ? -1 : static_cast<int>(found - m_rows.begin());
}

int ItemListModel::linkCount() const {
    return static_cast<int>(std::count_if(m_entries.begin(), m_entries.end(),
                                          [](const Entry& entry) { return entry.item.isLinked(); }));
}

bool ItemListModel::isLink(int row) const {
    const ComponentItem* found = item(row);
    return found != nullptr && found->isLinked();
}

int ItemListModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : count();
}

QVariant ItemListModel::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const Entry& entry = m_entries[m_rows[static_cast<std::size_t>(index.row())]];
    switch (role) {
    case NameRole:
        return QString::fromStdString(text::singleLine(entry.item.name));
    case KindRole:
        return entry.kind;
    case IsLinkRole:
        return entry.item.isLinked();
    default:
        return {};
    }
}

QHash<int, QByteArray> ItemListModel::roleNames() const {
    return {{NameRole, "name"}, {KindRole, "kind"}, {IsLinkRole, "isLink"}};
}

} // namespace selvane
