// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "Views/ChoiceListModel.h"

#include <algorithm>

namespace selvane {

void ChoiceListModel::setEntries(std::vector<Entry> entries) {
    beginResetModel();
    m_entries = std::move(entries);
    updateShown();
    endResetModel();
    emit entriesChanged();
    emit chosenChanged();
}

void ChoiceListModel::updateShown() {
    m_shown.clear();
    for (std::size_t i = 0; i < m_entries.size(); ++i) {
        if (m_search.isEmpty() || m_entries[i].title.contains(m_search, Qt::CaseInsensitive) ||
            m_entries[i].detail.contains(m_search, Qt::CaseInsensitive))
            m_shown.push_back(i);
    }
}

void ChoiceListModel::setSearch(const QString& text) {
    if (m_search == text)
        return;
    beginResetModel();
    m_search = text;
    updateShown();
    endResetModel();
    emit searchChanged();
}

std::set<std::string> ChoiceListModel::chosenKeys() const {
    std::set<std::string> keys;
    for (const Entry& entry : m_entries) {
        if (entry.isChosen)
            keys.insert(entry.key);
    }
    return keys;
}

int ChoiceListModel::chosenCount() const {
    return static_cast<int>(
        std::count_if(m_entries.begin(), m_entries.end(), [](const Entry& entry) { return entry.isChosen; }));
}

void ChoiceListModel::toggle(int row) {
    if (row < 0 || row >= rowCount())
        return;
    Entry& entry = m_entries[m_shown[static_cast<std::size_t>(row)]];
    entry.isChosen = !entry.isChosen;
    emit dataChanged(index(row), index(row), {IsChosenRole});
    emit chosenChanged();
}

void ChoiceListModel::chooseShown(bool chosen) {
    if (m_shown.empty())
        return;
    for (const std::size_t position : m_shown)
        m_entries[position].isChosen = chosen;
    emit dataChanged(index(0), index(rowCount() - 1), {IsChosenRole});
    emit chosenChanged();
}

int ChoiceListModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(m_shown.size());
}

QVariant ChoiceListModel::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const Entry& entry = m_entries[m_shown[static_cast<std::size_t>(index.row())]];
    switch (role) {
    case TitleRole:
        return entry.title;
    case DetailRole:
        return entry.detail;
    case IsChosenRole:
        return entry.isChosen;
    default:
        return {};
    }
}

QHash<int, QByteArray> ChoiceListModel::roleNames() const {
    return {{TitleRole, "title"}, {DetailRole, "detail"}, {IsChosenRole, "isChosen"}};
}

} // namespace selvane
