// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "Views/manage/ItemListModel.h"

#include <algorithm>
#include <utility>

#include "platform/text/Text.h"

namespace selvane {

void ItemListModel::setEntries(std::vector<Entry> entries) {
    if (entries == m_entries)
        return;
    beginResetModel();
    m_entries = std::move(entries);
    endResetModel();
    emit countChanged();
}

const ComponentItem* ItemListModel::item(int row) const {
    return row >= 0 && row < count() ? &m_entries[static_cast<std::size_t>(row)].item : nullptr;
}

int ItemListModel::rowOf(const QString& name) const {
    const auto found =
        std::ranges::find(m_entries, name.toStdString(), [](const Entry& entry) { return entry.item.name; });
    return found == m_entries.end() ? -1 : static_cast<int>(found - m_entries.begin());
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
    const Entry& entry = m_entries[static_cast<std::size_t>(index.row())];
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
