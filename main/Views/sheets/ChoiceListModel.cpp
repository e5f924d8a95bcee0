// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "Views/sheets/ChoiceListModel.h"

#include <QStringMatcher>

#include <algorithm>

#include "AppModel/LookValue.h"

namespace selvane {

void ChoiceListModel::setEntries(std::vector<Entry> entries) {
    beginResetModel();
    m_entries = std::move(entries);
    m_shown = found();
    endResetModel();
    emit entriesChanged();
    emit chosenChanged();
}

void ChoiceListModel::updateEntries(std::vector<Entry> entries) {
    const std::set<std::string> chosen = chosenKeys();
    for (Entry& entry : entries)
        entry.isChosen = chosen.contains(entry.key);
    if (entries != m_entries)
        setEntries(std::move(entries));
}

std::vector<std::size_t> ChoiceListModel::found() const {
    const QStringMatcher matcher(m_search, Qt::CaseInsensitive);
    std::vector<std::size_t> positions;
    for (std::size_t i = 0; i < m_entries.size(); ++i) {
        if (m_search.isEmpty() || matcher.indexIn(m_entries[i].title) >= 0 ||
            matcher.indexIn(m_entries[i].detail) >= 0)
            positions.push_back(i);
    }
    return positions;
}

void ChoiceListModel::setSearch(const QString& text) {
    if (m_search == text)
        return;
    m_search = text;
    emit searchChanged();
    std::vector<std::size_t> positions = found();
    if (positions == m_shown)
        return;
    beginResetModel();
    m_shown = std::move(positions);
    endResetModel();
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

QString ChoiceListModel::tallyOf(const QString& group) const {
    int all = 0;
    int chosen = 0;
    for (const Entry& entry : m_entries) {
        all += entry.group == group;
        chosen += entry.group == group && entry.isChosen;
    }
    return tr("%1 di %2").arg(chosen).arg(all);
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
    case AsideRole:
        return entry.aside;
    case MarkRole:
        return entry.mark;
    case IsChosenRole:
        return entry.isChosen;
    case GroupRole:
        return entry.group;
    case IsFirstRole:
        return index.row() == 0 ||
               m_entries[m_shown[static_cast<std::size_t>(index.row() - 1)]].group != entry.group;
    case LookRole:
        return lookVariant(entry.look);
    case IsProfileRole:
        return entry.isProfile;
    default:
        return {};
    }
}

QHash<int, QByteArray> ChoiceListModel::roleNames() const {
    return {{TitleRole, "title"},     {DetailRole, "detail"}, {IsChosenRole, "isChosen"},
            {AsideRole, "aside"},     {MarkRole, "mark"},     {GroupRole, "group"},
            {IsFirstRole, "isFirst"}, {LookRole, "look"},     {IsProfileRole, "isProfile"}};
}

} // namespace selvane
