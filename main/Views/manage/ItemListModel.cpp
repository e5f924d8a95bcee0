// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "Views/manage/ItemListModel.h"

#include <algorithm>
#include <utility>

#include "AppModel/RowUpdate.h"
#include "platform/text/Text.h"

namespace selvane {

void ItemListModel::setEntries(std::vector<Entry> entries) {
    if (entries == m_entries)
        return;
    RowUpdate::apply(*this, m_entries, std::move(entries),
                     [](const Entry& entry) { return entry.item.name; });
    if (!m_entries.empty())
        emit dataChanged(index(0), index(count() - 1));
    emit countChanged();
}

const ComponentItem* ItemListModel::item(int row) const {
    return row >= 0 && row < count() ? &m_entries[static_cast<std::size_t>(row)].item : nullptr;
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
