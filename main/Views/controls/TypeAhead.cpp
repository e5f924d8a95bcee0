// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "Views/controls/TypeAhead.h"

#include <algorithm>

#include "Views/controls/FoldedText.h"

namespace selvane {
namespace {

constexpr qint64 kPauseMilliseconds = 1000;

} // namespace

int TypeAhead::find(const QString& letter, int current, const QStringList& labels) {
    const bool isPause = !m_sinceLast.isValid() || m_sinceLast.hasExpired(kPauseMilliseconds);
    const QString typed = folded(letter);
    if (isPause)
        m_typed.clear();
    if (typed.isEmpty() || !typed[0].isPrint() || (m_typed.isEmpty() && typed[0].isSpace()))
        return -1;
    m_sinceLast.start();
    m_typed += typed;
    const int found = positionOf(current, labels);
    if (found >= 0 || m_typed == typed)
        return found;
    m_typed = typed; // perhaps it was meant alone
    return positionOf(current, labels);
}

int TypeAhead::positionOf(int current, const QStringList& labels) const {
    const bool isRepeated = m_typed.count(m_typed[0]) == m_typed.size();
    const QString start = isRepeated ? m_typed.left(1) : m_typed;
    const int count = static_cast<int>(labels.size());
    for (int i = 0; i < count; ++i) {
        // A first letter leaves the current entry, more of them may confirm it.
        const int position = (std::max(current, 0) + i + (isRepeated && current >= 0 ? 1 : 0)) % count;
        if (folded(labels[position]).startsWith(start))
            return position;
    }
    return -1;
}

int TypeAhead::findRow(const QString& letter, int current, QAbstractItemModel* rows, const QString& role) {
    if (rows == nullptr || letter.isEmpty())
        return -1;
    const int key = rows->roleNames().key(role.toUtf8(), -1);
    QStringList labels;
    for (int row = 0; row < rows->rowCount(); ++row)
        labels += rows->index(row, 0).data(key).toString();
    return find(letter, current, labels);
}

} // namespace selvane
